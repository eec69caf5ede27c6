// What stands on standard error behind the line of an abort, to the byte.
#include "Xdk/Xdk.h"
#include "standin/xdk/History.h"
#include "standin/xdk/LastWords.h"
#include "standin/xdk/Misuse.h"
#include "standin/xdk/Sim.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace xdksim {
namespace {

using testing::KilledBySignal;

/// Aborts with a line of its own in front, as an assertion does.
[[noreturn]] void fail() {
  std::fputs("it failed\n", stderr);
  std::abort();
}

void initEgressAcls() { xpEgressAclMgr::instance()->init(); }

/// Both ways in which a test can watch a process die.
struct HistoryTest : testing::TestWithParam<char const*> {
  HistoryTest() { testing::FLAGS_gtest_death_test_style = GetParam(); }
};
INSTANTIATE_TEST_SUITE_P(Styles, HistoryTest, testing::Values("fast", "threadsafe"),
                         [](auto const& style) { return std::string(style.param); });

/// The process is ended by that signal when `step` has run, and standard error is `expected`.
template <class Step>
void expectEnd(int signal, Step const& step, std::string const& expected) {
  EXPECT_EXIT(step(), KilledBySignal(signal), testing::StrEq(expected));
}

TEST_P(HistoryTest, CallsStandBehindTheLineOfTheAbort) {
  expectEnd(
      SIGABRT,
      [] {
        Sim sim;
        sim.statusIs("xpEgressAclMgr::addDevice", {-3});
        initEgressAcls();
        xpEgressAclMgr::instance()->addDevice(0, XP_INIT_COLD);
        fail();
      },
      "it failed\n"
      "simulated SDK: the last 2 calls:\n"
      "xpEgressAclMgr::init -> 0\n"
      "xpEgressAclMgr::addDevice device=0 init=1 -> -3\n");
}

TEST_P(HistoryTest, OneCallIsNotSeveral) {
  expectEnd(
      SIGABRT,
      [] {
        Sim sim;
        initEgressAcls();
        fail();
      },
      "it failed\nsimulated SDK: the last call:\nxpEgressAclMgr::init -> 0\n");
}

TEST_P(HistoryTest, NoCallsNoHeading) {
  expectEnd(
      SIGABRT,
      [] {
        Sim sim;
        xpDeviceMgr::instance()->getDeviceObj(0)->getTableProfile();
        fail();
      },
      "it failed\n");
}

TEST_P(HistoryTest, NothingIsToldWithoutASim) {
  expectEnd(
      SIGABRT,
      [] {
        {
          Sim sim;
          initEgressAcls();
        }
        fail();
      },
      "it failed\n");
}

TEST_P(HistoryTest, ResetForgetsTheCalls) {
  expectEnd(
      SIGABRT,
      [] {
        Sim sim;
        initEgressAcls();
        sim.reset();
        fail();
      },
      "it failed\n");
}

TEST_P(HistoryTest, MisuseIsAnAbortLikeAnyOther) {
  expectEnd(
      SIGABRT,
      [] {
        Sim sim;
        initEgressAcls();
        xpEgressAclMgr::instance()->loadDefaultValue(0);
      },
      "simulated SDK: xpEgressAclMgr lacks loadDefaultValue device=\n"
      "simulated SDK: the last call:\nxpEgressAclMgr::init -> 0\n");
}

TEST_P(HistoryTest, SignalFromOutsideIsAnAbortToo) {
  expectEnd(
      SIGABRT,
      [] {
        Sim sim;
        initEgressAcls();
        ::kill(getpid(), SIGABRT);
      },
      "simulated SDK: the last call:\nxpEgressAclMgr::init -> 0\n");
}

TEST_P(HistoryTest, AnotherEndTellsNothing) {
  expectEnd(
      SIGKILL,
      [] {
        Sim sim;
        initEgressAcls();
        raise(SIGKILL);
      },
      "");
  EXPECT_EXIT(
      {
        Sim sim;
        initEgressAcls();
        std::exit(3);
      },
      testing::ExitedWithCode(3), "^$");
}

std::string egressInits(U32 number) {
  std::string text;
  for (U32 i = 0; i < number; ++i) text += "xpEgressAclMgr::init -> " + std::to_string(i) + '\n';
  return text;
}

/// Standard error of a process that has called that many times, each call with its number as
/// status.
std::string toldAfter(U32 number) {
  std::string told;
  auto const take = [&told](std::string const& text) { return told = text, true; };
  EXPECT_EXIT(
      {
        Sim sim;
        std::vector<S32> statuses;
        for (U32 i = 0; i < number; ++i) statuses.push_back(static_cast<S32>(i));
        sim.statusIs("xpEgressAclMgr::init", statuses);
        for (U32 i = 0; i < number; ++i) initEgressAcls();
        std::abort();
      },
      KilledBySignal(SIGABRT), testing::Truly(take));
  return told;
}

TEST(HistoryRoomTest, TheLast256StandInIt) {
  EXPECT_EQ(toldAfter(256), "simulated SDK: the last 256 calls:\n" + egressInits(256));
}

TEST(HistoryRoomTest, OldestGoFirstWhenThereAreMore) {
  std::string expected = egressInits(600);
  std::string first = egressInits(600 - 256);
  EXPECT_EQ(toldAfter(600), "simulated SDK: the last 256 calls:\n" + expected.substr(first.size()));
}

ManagerId fdbManager() { return {managerOf("xpFdbMgr"), 0}; }

// What an abort tells that comes now.
std::string told(History const& history) {
  testing::internal::CaptureStderr();
  history.tell();
  return testing::internal::GetCapturedStderr();
}

TEST(HistoryLineTest, CallThatHasNotAnsweredHasNoStatus) {
  History history;
  EXPECT_EQ(told(history), "");
  history.callBegins(fdbManager(), Call::addTable, {.device = 3, .copies = 1, .mode = 1}, nullptr);
  std::string const line = "xpFdbMgr[0]::addDevice device=3 table=- copies=1 mode=1 -> ";
  EXPECT_EQ(told(history), "simulated SDK: the last call:\n" + line + "?\n");
  history.callEnds(42);
  EXPECT_EQ(history.last(), line + "42");
  EXPECT_EQ(told(history), "simulated SDK: the last call:\n" + line + "42\n");
}

TEST(HistoryLineTest, CallThatHasNotAnsweredIsOneOfTheLast) {
  History history;
  for (U32 i = 0; i < 300; ++i) {
    history.callBegins(fdbManager(), Call::init, {}, nullptr);
    history.callEnds(static_cast<XP_STATUS>(i));
  }
  history.callBegins(fdbManager(), Call::deInit, {}, nullptr);
  std::string const text = told(history);
  EXPECT_TRUE(text.starts_with("simulated SDK: the last 256 calls:\nxpFdbMgr[0]::init -> 45\n"));
  EXPECT_TRUE(text.ends_with("xpFdbMgr[0]::init -> 299\nxpFdbMgr[0]::deInit -> ?\n"));
  EXPECT_EQ(std::ranges::count(text, '\n'), 257);
}

TEST(HistoryLineTest, ShorterLineReplacesALongerOne) {
  History history;
  for (U32 i = 0; i <= History::room; ++i) {
    bool isLong = i == 0;
    history.callBegins(fdbManager(), isLong ? Call::addTable : Call::init, {}, nullptr);
    history.callEnds(0);
  }
  EXPECT_EQ(history.last(), "xpFdbMgr[0]::init -> 0");
}

/// What handles an abort now.
void (*handler())(int) {
  struct sigaction now {};
  sigaction(SIGABRT, nullptr, &now);
  return now.sa_handler;
}

void ownHandler(int) {
  LastWords::say("own\n");
  _exit(5);
}

TEST(LastWordsTest, FormerHandlerIsBackAfterwards) {
  auto* const before = handler();
  {
    Sim sim;
    EXPECT_NE(handler(), before);
    EXPECT_THROW(Sim(), std::logic_error);
    EXPECT_NE(handler(), before);
  }
  EXPECT_EQ(handler(), before);
}

TEST(LastWordsTest, RefusedSimInstallsNone) {
  auto* const before = handler();
  Profile profile;
  profile.sdkStatus["xpNoMgr::addDevice"] = {42};
  EXPECT_THROW(Sim sim(profile), std::invalid_argument);
  EXPECT_EQ(handler(), before);
}

TEST(LastWordsTest, HandlerThatCameLaterStays) {
  auto* const before = handler();
  {
    Sim sim;
    std::signal(SIGABRT, ownHandler);
  }
  EXPECT_EQ(handler(), ownHandler);
  std::signal(SIGABRT, before);
}

TEST(LastWordsTest, FormerHandlerHasItsTurn) {
  EXPECT_EXIT(
      {
        std::signal(SIGABRT, ownHandler);
        Sim sim;
        initEgressAcls();
        std::abort();
      },
      testing::ExitedWithCode(5),
      "^simulated SDK: the last call:\nxpEgressAclMgr::init -> 0\nown\n$");
}

TEST(LastWordsTest, IgnoredSignalEndsTheProcessByAbortAllTheSame) {
  expectEnd(
      SIGABRT,
      [] {
        std::signal(SIGABRT, SIG_IGN);
        Sim sim;
        initEgressAcls();
        fail();
      },
      "it failed\nsimulated SDK: the last call:\nxpEgressAclMgr::init -> 0\n");
}

}  // namespace
}  // namespace xdksim
