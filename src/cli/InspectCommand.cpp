// `svgfigurer inspect FILE`: opens FILE as a document (its kind decided by its extension) and
// prints the document's state as one JSON object.
#include <filesystem>
#include <iostream>
#include <nlohmann/json.hpp>

#include "AppSupport.h"
#include "Commands.h"
#include "SVGFigurerApp/SVGFigurerDocument.h"

namespace svgfigurer::cli {

void addInspectCommand(CLI::App& app) {
  auto* command = app.add_subcommand("inspect", "Open a file as a document and print its state");
  auto path = std::make_shared<std::string>();
  command->add_option("file", *path, "An .svg, .swift or .svgfigurer file")->required();
  command->callback([path] {
    auto document = openDocument(*path);
    const nlohmann::json state{
        {"svg", document->svgString()},
        {"swift", document->swift()},
        {"generatedSwift", document->generatedSwift()},
        {"rebuildFailed", document->rebuildFailed()},
        {"edited", document->isEdited()},
    };
    std::cout << state.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
  });
}

}  // namespace svgfigurer::cli
