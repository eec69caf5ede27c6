// The language of the tests of what ends the process: what stands on standard error then.
#pragma once

#include "XpLib/XpTableManSmRigTest.h"

#include <algorithm>
#include <csignal>

namespace Kestrel::xpTableManSm {

/// One call whose status is looked at.
struct Checked {
  char const* operation;  ///< of the SDK
  char const* call;       ///< what the status line says
  char const* signature;  ///< of the operation that calls
};

inline void PrintTo(Checked const& checked, std::ostream* out) { *out << checked.operation; }

/// What a failed assertion leaves on standard error; its line stands as "N".
inline std::string assertion(std::string const& text, std::string const& signature) {
  return "xplib_tests: src-includes/XpLib/XpTableManSm:N: " + signature + ": Assertion `" + text +
         "' failed.\n";
}

/// What a status that isn't accepted leaves there.
inline std::string apiError(std::string const& call, S32 status, std::string const& signature) {
  return "src-includes/XpLib/XpTableManSm:N " + call + " API ERROR " + std::to_string(status) +
         '\n' + assertion("!(true)", signature);
}

/// Takes the SDK's lines on its faults off the end of `text`.
inline void cutFaults(std::string& text) {
  auto const lastLine = [&text] {
    std::size_t const end = text.size() < 2 ? text.npos : text.rfind('\n', text.size() - 2);
    return end == text.npos ? 0 : end + 1;
  };
  while (text.compare(lastLine(), 22, "simulated SDK: fault \"") == 0) text.erase(lastLine());
}

/// Takes the SDK's history of calls off the end of `text`: a heading that tells their number, as
/// many lines of the call log, and what became of faults.  Calls stay where heading and number
/// don't agree.
inline void cutHistory(std::string& text) {
  cutFaults(text);
  std::string const heading = "simulated SDK: the last ";
  std::size_t const at = text.find(heading);
  if (at == text.npos || (at > 0 && text[at - 1] != '\n')) return;
  std::size_t const calls = text.find('\n', at) + 1;
  std::string const number = text.substr(at + heading.size(), calls - at - heading.size());
  auto const numLines =
      std::count(text.begin() + static_cast<std::ptrdiff_t>(calls), text.end(), '\n');
  bool const agrees =
      numLines == 1 ? number == "call:\n" : number == std::to_string(numLines) + " calls:\n";
  if (agrees && text.back() == '\n') text.erase(at);
}

/// Standard error is exactly `expected` with nothing but the SDK's history of calls behind it, and
/// all its lines name one and the same line of the source.
MATCHER_P(SaysInOneLine, expected, "standard error is:\n" + std::string(expected)) {
  std::string const path = "XpTableManSm:";
  std::string text = arg;
  cutHistory(text);
  std::string number;
  for (std::size_t at = text.find(path); at != text.npos; at = text.find(path, at + 1)) {
    std::size_t const digits = at + path.size();
    std::size_t const end = text.find_first_not_of("0123456789", digits);
    std::string const here = text.substr(digits, end - digits);
    if (here.empty() || (!number.empty() && here != number)) return false;
    number = here;
    text.replace(digits, here.size(), "N");
  }
  return text == expected;
}

/// `step` ends the process by `abort`, and standard error is `expected`.
template <class Step>
void expectAbort(Step const& step, std::string const& expected) {
  EXPECT_EXIT(step(), testing::KilledBySignal(SIGABRT), SaysInOneLine(expected));
}

}  // namespace Kestrel::xpTableManSm
