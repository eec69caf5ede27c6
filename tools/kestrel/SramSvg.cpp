// The picture as a file of its own.
#include "tools/kestrel/Markup.h"
#include "tools/kestrel/SramDrawing.h"
#include "tools/kestrel/SramPicture.h"

#include <algorithm>

namespace kestrel {

using namespace sramDrawing;

namespace {

constexpr U32 titleHeight = 40;
constexpr U32 lineStep = 18;

std::string moved(U32 x, U32 y, std::string const& content, char const* style = "") {
  return element("g",
                 {{"class", style},
                  {"transform", "translate(" + std::to_string(x) + ' ' + std::to_string(y) + ')'}},
                 content);
}

std::string legendLine(SramModel const& model, std::size_t group) {
  return sramSwatch(model, group, 26, 13) +
         text("", 34, 11,
              model.groups[group].names() + ", " + blockCount(model.groups[group].blocks));
}

/// Where the lines of the legend stand: columns as high as the map, beside it.
struct Legend {
  explicit Legend(SramModel const& model) : lines(static_cast<U32>(model.groups.size())) {
    std::size_t longest = 0;
    for (SramGroup const& group : model.groups) longest = std::max(longest, group.names().size());
    columnWidth = 34 + static_cast<U32>(longest + 12) * 8;  // of letters that are 8 wide at most
  }

  static constexpr U32 perColumn = (height - top) / lineStep;
  U32 lines;
  U32 columnWidth;

  U32 columns() const { return (lines + perColumn - 1) / perColumn; }
  U32 right() const { return width + 16 + columns() * columnWidth; }
};

std::string legend(SramModel const& model, Legend const& places) {
  std::string lines;
  for (U32 line = 0; line < places.lines; ++line)
    lines += moved(width + 16 + line / places.perColumn * places.columnWidth,
                   top + line % places.perColumn * lineStep, legendLine(model, line), "legend") +
             '\n';
  return lines;
}

std::string drawnNotes(std::vector<std::string> const& lines) {
  if (lines.empty()) return "";
  U32 y = height + 20;
  std::string result = text("", 8, y, notesHead);
  for (std::string const& line : lines) result += text("beyond", 20, y += lineStep, line) + '\n';
  return result;
}

}  // namespace

std::string sramSvg(SramModel const& model) {
  Legend const places(model);
  std::vector<std::string> const beyond = sramNotes(model);
  U32 const wide = std::max(places.right(), width + 8);
  U32 const high =
      titleHeight + height + (beyond.empty() ? 0 : static_cast<U32>(beyond.size() + 2) * lineStep);
  std::string const style = std::string(sramStyle) +
                            "  .sram .paper { fill: #ffffff; }\n"
                            "  .sram .title { font-size: 16px; font-weight: bold; }\n"
                            "  @media (prefers-color-scheme: dark) {\n"
                            "    .sram .paper { fill: #14171b; }\n"
                            "  }\n";
  std::string const content =
      '\n' + element("style", {}, style) + '\n' +
      element("rect", {{"class", "paper"}, {"width", wide}, {"height", high}}) +
      text("title", 8, 26, "SRAM: " + sramSummary(model)) + '\n' +
      moved(0, titleHeight, sramColumns(model) + legend(model, places) + drawnNotes(beyond)) + '\n';
  return element("svg",
                 {{"xmlns", "http://www.w3.org/2000/svg"},
                  {"class", "sram"},
                  {"width", wide},
                  {"height", high},
                  {"viewBox", "0 0 " + std::to_string(wide) + ' ' + std::to_string(high)}},
                 content) +
         '\n';
}

}  // namespace kestrel
