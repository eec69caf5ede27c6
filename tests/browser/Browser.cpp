// The tool, the browser, and the figures in between.
#include "tests/browser/Browser.h"

#include "tests/tool/ToolRun.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

namespace browser {

using Json = nlohmann::json;

// Found by the JSON library in the namespace of what they make.

static void from_json(Json const& json, Box& box) {
  box = {json.at("x"), json.at("y"), json.at("width"), json.at("height")};
}

static void from_json(Json const& json, Block& block) {
  block = {json.at("pool"),   json.at("block"),     json.at("box"),   json.at("fill"),
           json.at("letter"), json.at("letterBox"), json.at("hover"), json.at("isSeen")};
}

static void from_json(Json const& json, LegendLine& line) {
  line = {json.at("letter"), json.at("text"), json.at("box"), json.at("fill"), json.at("isSeen")};
}

static void from_json(Json const& json, Label& label) { label = {json.at("text"), json.at("box")}; }

static void from_json(Json const& json, Picture& picture) {
  json.at("blocks").get_to(picture.blocks);
  json.at("legend").get_to(picture.legend);
  json.at("pools").get_to(picture.pools);
  json.at("notes").get_to(picture.notes);
  json.at("beyond").get_to(picture.beyond);
  json.at("paper").get_to(picture.paper);
  json.at("ink").get_to(picture.ink);
  json.at("fetched").get_to(picture.fetched);
  json.at("faults").get_to(picture.faults);
  json.at("lit").get_to(picture.lit);
  json.at("isDimmedBehind").get_to(picture.isDimmedBehind);
}

namespace {

void replace(std::string& text, std::string const& what, std::string const& with) {
  for (std::size_t at = 0; (at = text.find(what, at)) != text.npos; at += with.size())
    text.replace(at, what.size(), with);
}

/// The document with a script at its end, and one at its beginning that notes the faults of others.
std::string withScripts(std::string document, bool isPage) {
  std::string const measure = tool::contentOf(KESTREL_SOURCE_DIR "/tests/browser/Measure.js");
  std::string const note =
      "<script>window.faults = []; "
      "addEventListener('error', event => window.faults.push(String(event.message)));</script>";
  std::string const last = isPage ? "</body>" : "</svg>\n";
  std::size_t const end = document.rfind(last);
  if (end == document.npos) throw std::runtime_error("the document has no end: " + document);
  document.insert(end,
                  "<script>" + (isPage ? measure : "<![CDATA[" + measure + "]]>") + "</script>");
  document.insert(document.find('>', document.find(isPage ? "<head" : "<svg")) + 1, note);
  return document;
}

/// The document as the browser holds it behind all scripts.
std::string rendered(tool::Folder const& folder, std::string const& file,
                     Surroundings surroundings) {
  std::string const scheme = surroundings == Surroundings::dark ? "0" : "1";
  std::string const command = "timeout 120 " KESTREL_BROWSER
                              " --headless --no-sandbox --disable-gpu --hide-scrollbars"
                              " --disable-dev-shm-usage --window-size=2400,2400 --user-data-dir='" +
                              folder.path() +
                              "/user' --blink-settings=preferredColorScheme=" + scheme +
                              " --dump-dom 'file://" + folder.path() + '/' + file + "' 2>'" +
                              folder.path() + "/complaints'";
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> const out(popen(command.c_str(), "r"), pclose);
  std::string document;
  char piece[65536];
  while (std::size_t const size = std::fread(piece, 1, sizeof piece, out.get()))
    document.append(piece, size);
  return document;
}

Json measuredIn(std::string const& document, std::string const& complaints) {
  std::string const mark = "id=\"measured\">";
  std::size_t const at = document.find(mark);
  if (at == document.npos)
    throw std::runtime_error("the browser has measured nothing: " + document + complaints);
  std::size_t const begin = at + mark.size();
  std::string text = document.substr(begin, document.find("</pre>", begin) - begin);
  replace(text, "&lt;", "<");
  replace(text, "&gt;", ">");
  replace(text, "&amp;", "&");
  return Json::parse(text);
}

}  // namespace

bool Box::overlaps(Box const& other) const {
  return x < other.right() && other.x < right() && y < other.bottom() && other.y < bottom();
}

Picture render(std::string const& option, std::string const& command, Surroundings surroundings) {
  bool const isPage = option == "--html";
  std::string const file = isPage ? "page.html" : "picture.svg";
  tool::Folder const folder;
  tool::Outcome const drawn =
      tool::kestrel("report sram " + option + ' ' + file + ' ' + command, folder.path());
  if (drawn.status != 0) throw std::runtime_error(drawn.err);
  folder.has(file, withScripts(tool::contentOf(folder.path() + '/' + file), isPage));
  std::string const document = rendered(folder, file, surroundings);
  return measuredIn(document, tool::contentOf(folder.path() + "/complaints")).get<Picture>();
}

}  // namespace browser
