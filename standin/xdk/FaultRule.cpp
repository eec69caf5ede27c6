// The reader of the language of faults.
#include "standin/xdk/FaultRule.h"

#include "standin/xdk/Json.h"

#include <charconv>
#include <limits>
#include <stdexcept>
#include <vector>

namespace xdksim {
namespace {

using Fault = std::invalid_argument;
using Words = std::vector<std::string_view>;
using enum FaultRule::Outcome;
using enum FaultRule::When;

constexpr std::string_view blanks = " \t";

Words wordsOf(std::string_view text) {
  Words words;
  auto at = text.find_first_not_of(blanks);
  while (at != std::string_view::npos) {
    auto end = std::min(text.find_first_of(blanks, at), text.size());
    words.push_back(text.substr(at, end - at));
    at = text.find_first_not_of(blanks, end);
  }
  return words;
}

std::string joined(Words const& words) {
  std::string text;
  for (std::string_view word : words) (text += text.empty() ? "" : " ") += word;
  return text;
}

/// Reads the whole word as a number of type `T`; what `from_chars` says of it otherwise.
template <class T>
std::errc readNumber(std::string_view word, T& number) {
  auto read = std::from_chars(word.data(), word.data() + word.size(), number);
  bool isWhole = read.ptr == word.data() + word.size();
  return read.ec == std::errc() && !isWhole ? std::errc::invalid_argument : read.ec;
}

template <class T>
std::string rangeOf(T first) {
  return std::to_string(first) + " to " + std::to_string(std::numeric_limits<T>::max());
}

void readOutcome(FaultRule& rule, std::string_view word) {
  if (word == "null" || word == "kill") {
    rule.outcome = word == "null" ? null : kill;
    return;
  }
  std::errc fault = readNumber(word, rule.status);
  if (fault == std::errc::result_out_of_range)
    throw Fault(inQuotes(word) + " is no status, " + rangeOf(std::numeric_limits<S32>::min()));
  if (fault != std::errc()) throw Fault("expected a status, null or kill, not " + inQuotes(word));
}

U32 countOf(std::string_view word) {
  U32 number = 0;
  if (readNumber(word, number) != std::errc() || number == 0)
    throw Fault(inQuotes(word) + " is no count of calls, " + rangeOf(U32{1}));
  return number;
}

void readWhen(FaultRule& rule, std::string_view word, std::string_view behind) {
  if (word == "after") {
    rule.when = after;
    rule.other = operationKey(behind);
  } else {
    rule.when = word == "at" ? at : every;
    rule.number = countOf(behind);
  }
}

}  // namespace

FaultRule faultRule(std::string_view text) {
  Words words = wordsOf(text);
  if (words.empty()) throw Fault("a fault has a key and an outcome: \"xpFdbMgr::addDevice 5\"");
  if (words.size() == 1)
    throw Fault("expected a status, null or kill behind " + inQuotes(words[0]));
  FaultRule rule;
  rule.text = joined(words);
  readOutcome(rule, words[1]);
  rule.key = rule.outcome == null ? managerKey(words[0]) : operationKey(words[0]);
  if (words.size() == 2) return rule;
  if (words[2] != "at" && words[2] != "every" && words[2] != "after")
    throw Fault("expected at, every or after behind " + inQuotes(words[1]) + ", not " +
                inQuotes(words[2]));
  if (words.size() == 3)
    throw Fault(std::string(words[2] == "after" ? "expected a call" : "expected a count of calls") +
                " behind " + inQuotes(words[2]));
  readWhen(rule, words[2], words[3]);
  if (words.size() > 4) throw Fault("nothing may follow " + inQuotes(words[3]));
  return rule;
}

}  // namespace xdksim
