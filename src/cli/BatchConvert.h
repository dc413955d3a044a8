// `svgfigurer convert -o DIR`: many inputs converted on worker threads into one folder.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "SVGFigurerApp/SVGFigurerConfiguration.h"

namespace svgfigurer::cli {

struct BatchRequest {
  std::vector<std::string> files;
  std::filesystem::path folder;
  unsigned jobs = 1;
  double timeoutSeconds = 0;  // 0: no limit
  std::string timingsFile;    // empty: no timings
};

// The exit status a batch ends with when one conversion runs past the time limit.
inline constexpr int batchTimeoutExitCode = 124;

// Converts every file of the request and gives the exit status: 0 when all converted, 1 when
// any failed. Each failure gets one line "svgfigurer: FILE: reason" on standard error. A
// conversion that outlives the time limit ends the process with `batchTimeoutExitCode`.
int runBatch(const BatchRequest& request, const SVGFigurerApp::SVGFigurerConfiguration& config);

// The output file stem of each input, in input order: the input's own stem, or for a stem
// already taken by an earlier input the first free "stem-2", "stem-3", ...
std::vector<std::string> outputStems(const std::vector<std::string>& files);

// "my-icon_2" gives "MyIcon2", "24px" gives "Z24px".
std::string rootViewNameForStem(const std::string& stem);

}  // namespace svgfigurer::cli
