// The demonstration's story.
#include "tools/kestrel/Demo.h"

#include "tools/kestrel/BringUp.h"

#include <ostream>
#include <set>

namespace kestrel {

namespace {

class Story {
 public:
  Story(std::ostream& out, bool colour) : out_(out), colour_(colour) {}

  void heading(char const* text) {
    out_ << '\n' << (colour_ ? "\033[1m" : "") << text << (colour_ ? "\033[0m" : "") << "\n\n";
  }
  void text(Mox::String8 const& text) { out_ << text; }
  void line(Mox::String8 const& line) { out_ << line << '\n'; }

 private:
  std::ostream& out_;  // outlives the story
  bool colour_;
};

void tellOfChip(Story& story, xdksim::Profile const& profile) {
  story.heading("The chip");
  story.line(Mox::format("Device %u is simulated: its SDK answers from the built-in profile, which",
                         U32{profile.deviceId}));
  story.line(
      Mox::format("describes %u tables (\"kestrel profile\" prints it).  Its pipeline mode is "
                  "%u, and it",
                  static_cast<U32>(profile.tables.size()), profile.ldePipeMode));
  story.line(profile.coldStartNeeded ? "starts cold." : "is taken over warm, while it forwards.");
}

// Counts the SDK's calls, and shows the tables as they are published.
void tellOfBringUp(Story& story, Chip& chip) {
  story.heading("Bring-up");
  story.line(
      "The table manager gives each table to its manager in the SDK, judges the answer, and");
  story.line("publishes the table in the chip's status, where this program observes it:");
  story.line("");
  U32 numCalls = 0;
  auto const watch = EntryWatch::start(
      chip.status(), [&story](std::string_view line) { story.line("  " + Mox::String8(line)); });
  chip.sdk().callLogIs([&numCalls](std::string_view) { ++numCalls; });
  chip.bringUp();
  chip.sdk().callLogIs({});
  story.line("");
  story.line(Mox::format("The SDK took %u calls; %u tables are published.", numCalls,
                         chip.status()->tableContextEntryCount()));
}

void tellOfReports(Story& story, Kestrel::TableCliHelper& reports) {
  story.heading("Summary report");
  story.line("Rows that each table takes in the three kinds of memory:");
  story.line("");
  story.text(reports.displayAllDynamicTablesSummary());
  story.heading("SRAM allocation graph");
  story.line("A letter for each set of tables that lie on a block:");
  story.line("");
  story.text(reports.displaySramAllocationGraph());
}

// The first table of each type, in the order of the reports.
void tellOfDetails(Story& story, Kestrel::TableCliHelper& reports) {
  story.heading("Detail report");
  story.line("What the copies of one table of each type hold:");
  std::set<U8> types;
  for (auto at = reports.chipStatus()->tableContextIteratorConst(); at; ++at) {
    if (!types.insert(at.value()->tableType()).second) continue;
    story.line("");
    story.text(reports.displaySingleDynamicTableDetail(at.key()));
  }
}

void tellOfMore(Story& story) {
  story.heading("Further");
  story.line("kestrel bringup                      each call of the SDK");
  story.line(
      "kestrel report --help                reports, also on a chip of your own (--profile)");
  story.line("kestrel report sram --html sram.html the graph as a picture");
  story.line("kestrel types                        every type of the library");
}

}  // namespace

void printDemo(bool colour, std::ostream& out) {
  xdksim::Profile const profile = xdksim::defaultProfile();
  Story story(out, colour);
  tellOfChip(story, profile);
  out << std::flush;  // to be seen also where the bring-up ends the process
  Chip chip(profile, "the built-in profile");
  tellOfBringUp(story, chip);
  auto const reports = chip.reports();
  tellOfReports(story, *reports);
  tellOfDetails(story, *reports);
  tellOfMore(story);
}

}  // namespace kestrel
