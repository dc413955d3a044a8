// The literal texts of the generated source: geometry values, string bodies and affine
// transform steps. Numbers go through the stream's `numberString` unless noted.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "SVGConverter/CodeGenerationStream.h"
#include "SVGConverter/SwiftUIModel.h"
#include "SVGParser/Geometry.h"

namespace SVGConverter {

std::string pointLiteral(const CodeGenerationStream& s, CGPoint p, bool preferInit);
void appendPointLiteral(std::string& out, const CodeGenerationStream& s, CGPoint p,
                        bool preferInit);
// The same literal written at `cursor` (room for `maximumPointLiteralLength` bytes) when both
// numbers take the stream's quick road; false otherwise, `cursor` left where it was.
inline constexpr std::size_t maximumPointLiteralLength = 128;
bool writePointLiteral(char*& cursor, const CodeGenerationStream& s, CGPoint p, bool preferInit);
std::string sizeLiteral(const CodeGenerationStream& s, CGSize size, bool preferInit);
// X and Y as plain double text, width and height through `numberString`:
// "CGRect(x: 0.0, y: 0.0, width: 24, height: 24)".
std::string rectLiteral(const CodeGenerationStream& s, const CGRect& r, bool preferInit);
std::string unitPointLiteral(const CodeGenerationStream& s, CGPoint p, bool preferInit);

// Backslashes doubled first, so that the backslashes the later passes add stay single; then
// line feeds as "\n" and double quotes escaped. Nothing else changes.
std::string escapedStringLiteralBody(std::string_view text);

// One transform step as the initialiser form that starts a chain, or as a chained call.
std::string firstStepText(const CodeGenerationStream& s, const SwiftUIModel::TransformStep& step,
                          bool preferInit);
// A chained matrix always names its type, so the chained form takes no `preferInit`.
std::string chainedStepText(const CodeGenerationStream& s, const SwiftUIModel::TransformStep& step);
// The same two texts appended to `out`.
void appendFirstStepText(std::string& out, const CodeGenerationStream& s,
                         const SwiftUIModel::TransformStep& step, bool preferInit);
void appendChainedStepText(std::string& out, const CodeGenerationStream& s,
                           const SwiftUIModel::TransformStep& step);
// The first step in the initialiser form, the others chained; empty for no steps.
std::vector<std::string> transformStepTexts(const CodeGenerationStream& s,
                                            const std::vector<SwiftUIModel::TransformStep>& steps,
                                            bool preferInit);

}  // namespace SVGConverter
