// The picture within a page.
#include "tools/kestrel/Markup.h"
#include "tools/kestrel/SramDrawing.h"
#include "tools/kestrel/SramPicture.h"

namespace kestrel {

using namespace sramDrawing;

namespace {

char const* const pageStyle = R"(
  :root { color-scheme: light dark; }
  body { margin: 24px; font: 14px "DejaVu Sans", "Segoe UI", Helvetica, Arial, sans-serif;
         color: #1d232b; background: #ffffff; }
  h1 { font-size: 20px; margin: 0 0 4px; }
  p { margin: 0 0 12px; color: #5b6673; }
  main { display: flex; flex-wrap: wrap; gap: 12px 32px; align-items: flex-start; }
  main > svg { flex: none; }
  .legend { flex: 1 1 360px; margin: 40px 0 0; padding: 0; list-style: none; font-size: 12px;
            columns: 20em; column-gap: 24px; }
  .legend li { display: flex; gap: 8px; align-items: center; padding: 2px 4px; border-radius: 3px;
               break-inside: avoid; }
  .legend li svg { flex: none; }
  .legend .count { margin-left: auto; padding-left: 12px; color: #5b6673; white-space: nowrap; }
  .legend li:hover, .legend li:focus { background: #eef1f4; outline: none; }
  .map .block { transition: opacity 0.1s; }
  .map.dimmed .block:not(.lit) { opacity: 0.15; }
  @media (prefers-color-scheme: dark) {
    body { color: #e3e7ec; background: #14171b; }
    p, .legend .count { color: #9aa5b1; }
    .legend li:hover, .legend li:focus { background: #272c33; }
  }
)";

char const* const pageScript = R"(
  const map = document.querySelector('.map');
  for (const line of document.querySelectorAll('.legend li')) {
    const blocks = map.querySelectorAll(`[data-group="${line.dataset.group}"]`);
    const light = on => () => {
      map.classList.toggle('dimmed', on);
      for (const block of blocks) block.classList.toggle('lit', on);
    };
    for (const event of ['mouseenter', 'focus']) line.addEventListener(event, light(true));
    for (const event of ['mouseleave', 'blur']) line.addEventListener(event, light(false));
  }
)";

std::string svg(char const* style, U32 wide, U32 high, std::string const& content) {
  return element("svg", {{"class", style}, {"width", wide}, {"height", high}}, content);
}

std::string legendEntry(SramModel const& model, std::size_t group) {
  return element(
             "li", {{"data-group", static_cast<U32>(group)}, {"tabindex", 0u}},
             svg("sram", 26, 13, sramSwatch(model, group, 26, 13)) +
                 element("span", {{"class", "names"}}, escaped(model.groups[group].names())) +
                 element("span", {{"class", "count"}}, blockCount(model.groups[group].blocks))) +
         '\n';
}

std::string legend(SramModel const& model) {
  std::string lines = "\n";
  for (std::size_t group = 0; group < model.groups.size(); ++group)
    lines += legendEntry(model, group);
  return element("ul", {{"class", "legend"}}, lines);
}

std::string notes(std::vector<std::string> const& lines) {
  if (lines.empty()) return "";
  std::string items;
  for (std::string const& line : lines) items += element("li", {}, escaped(line)) + '\n';
  return element("p", {}, notesHead) + element("ul", {{"class", "beyond"}}, items) + '\n';
}

}  // namespace

std::string sramHtml(SramModel const& model) {
  std::string const head = "<meta charset=\"utf-8\">\n" + element("title", {}, "SRAM allocation") +
                           '\n' + element("style", {}, std::string(sramStyle) + pageStyle) + '\n';
  std::string const body =
      '\n' + element("h1", {}, "SRAM allocation") + '\n' +
      element("p", {}, sramSummary(model) + "; a block is 1,024 rows, a tile 8 blocks") + '\n' +
      element("main", {},
              '\n' + svg("sram map", width, height, '\n' + sramColumns(model)) + '\n' +
                  legend(model) + '\n') +
      '\n' + notes(sramNotes(model)) + element("script", {}, pageScript) + '\n';
  return "<!DOCTYPE html>\n" +
         element(
             "html", {{"lang", "en"}},
             '\n' + element("head", {}, '\n' + head) + '\n' + element("body", {}, body) + '\n') +
         '\n';
}

}  // namespace kestrel
