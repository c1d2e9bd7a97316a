// See ElementTests.h.
#include "tests/support/ElementTests.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace qorltst::testing {
namespace {

constexpr std::int32_t kFirstType = -2;
constexpr std::int32_t kLastType = 4000;

/// A call that is not reached.
constexpr std::size_t kNever = 1'000'000'000;

/// A type that no class knows.
constexpr std::int32_t kSubField = -7;

const toolkit::RuntimeError& ToolkitFailure() {
  static const toolkit::RuntimeError kFailure(1234, u"Toolkit.Node", u"It broke");
  return kFailure;
}

bool IsBegin(const Entry& entry) { return entry.message.starts_with(u"Beginning"); }

/// How many procedures have begun and not ended.
std::size_t OpenProcedures(const std::vector<Entry>& log) {
  const auto begins = static_cast<std::size_t>(std::ranges::count_if(log, IsBegin));
  return begins - (log.size() - begins);
}

bool ReadsAValue(const std::string& call) {
  constexpr std::array kReads{"Text ", "ErrorText ", "DateValue ", "Buffer "};
  return std::ranges::any_of(kReads, [&call](const char* read) { return call.starts_with(read); });
}

}  // namespace

Texts Filled(Object& object) {
  Texts filled;
  for (const Member& row : object.Description().members) {
    const std::string name = Readable(row.name) + "=";
    if (const auto* const text = std::get_if<StringField>(&row.access); text != nullptr && !text->in(object).empty()) {
      filled.push_back(name + Readable(text->in(object)));
    }
    if (const auto* const date = std::get_if<DateField>(&row.access);
        date != nullptr && date->in(object) != toolkit::Date{}) {
      filled.push_back(name + std::to_string(date->in(object).days));
    }
  }
  return filled;
}

std::string NumberAndSource(const toolkit::RuntimeError& error) {
  std::array<char, 16> number{};
  std::snprintf(number.data(), number.size(), "0x%08X", static_cast<unsigned>(error.Number()));
  return number.data() + (" " + Readable(error.Source()));
}

std::string Climbed(const toolkit::RuntimeError& raised, std::size_t traps) {
  if (traps == 0) {
    return NumberAndSource(raised);
  }
  if (traps == 1) {
    const auto number = static_cast<std::int32_t>(0x80040000U + static_cast<std::uint32_t>(raised.Number()));
    return NumberAndSource({number, raised.Source(), u""});
  }
  return traps % 2 == 0 ? "0x00000006 QorlTST" : "0x80040006 QorlTST";
}

ElementFixture::ElementFixture(CreateElement create, FillElement fill)
    : element_(create(*toolkit_)), create_(create), fill_(fill) {}

void ElementFixture::Fill(Tree line) { fill_(*element_, *toolkit_->Node(std::move(line))); }

Texts ElementFixture::FilledFrom(Tree line) {
  Fill(std::move(line));
  return Filled(*element_);
}

std::string ElementFixture::FailureOf(Tree line) {
  try {
    Fill(std::move(line));
  } catch (const toolkit::RuntimeError& error) {
    return NumberAndSource(error);
  }
  return "no failure";
}

Texts ElementFixture::StoredBelow(const std::vector<std::int32_t>& groups) {
  Texts stored;
  for (std::int32_t type = kFirstType; type <= kLastType; ++type) {
    Tree tree{type, u"text", {Tree{kSubField}.WithBuffer(u"one"), Tree{kSubField}.WithBuffer(u"two")}};
    tree.date = 1;
    for (auto group = groups.rbegin(); group != groups.rend(); ++group) {
      tree = Tree{*group, u"group", {tree}};
    }
    for (const std::string& filled : FillFresh({1000, u"", {tree}}, 0).filled) {
      stored.push_back(std::to_string(type) + " " + filled);
    }
  }
  return stored;
}

Outcome ElementFixture::FillFresh(const Tree& line, std::size_t failAt) {
  toolkit_->calls.clear();
  toolkit_->log.clear();
  toolkit_->FailAt(failAt != 0 ? failAt : kNever, ToolkitFailure());
  const Ref<Object> element = create_(*toolkit_);
  Outcome outcome;
  try {
    fill_(*element, *toolkit_->Node(line));
  } catch (const toolkit::RuntimeError& error) {
    outcome.error = error;
    outcome.failedCall = toolkit_->calls.back();
  }
  outcome.filled = Filled(*element);
  outcome.log = toolkit_->log;
  return outcome;
}

std::vector<Outcome> ElementFixture::FailAtEveryCall(const Tree& line) {
  std::vector<Outcome> outcomes;
  do {
    outcomes.push_back(FillFresh(line, outcomes.size() + 1));
  } while (!outcomes.back().failedCall.empty());
  EXPECT_EQ(outcomes.size(), toolkit_->calls.size() + 1) << "a failure was swallowed";
  return outcomes;
}

void ElementFixture::ExpectEveryFailureToClimb(const Tree& line, const Calls& callsOfTheParser) {
  const std::vector<Outcome> outcomes = FailAtEveryCall(line);
  const std::vector<Entry>& wholeLog = outcomes.back().log;
  for (std::size_t n = 0; n + 1 < outcomes.size(); ++n) {
    const Outcome& outcome = outcomes[n];
    SCOPED_TRACE(std::to_string(n + 1) + ": " + outcome.failedCall);
    const std::size_t traps = OpenProcedures(outcome.log);
    EXPECT_EQ(NumberAndSource(outcome.error), Climbed(ToolkitFailure(), traps));
    EXPECT_EQ(traps == 0, std::ranges::count(callsOfTheParser, outcome.failedCall) != 0);
    ASSERT_LE(outcome.log.size(), wholeLog.size());
    EXPECT_TRUE(std::equal(outcome.log.begin(), outcome.log.end(), wholeLog.begin()));
  }
}

void ElementFixture::ExpectEveryFailureToKeepWhatWasSet(const Tree& line) {
  const std::vector<Outcome> outcomes = FailAtEveryCall(line);
  const Texts& all = outcomes.back().filled;
  std::size_t readBefore = 0;
  for (const Outcome& outcome : outcomes) {
    SCOPED_TRACE("before " + outcome.failedCall);
    EXPECT_EQ(outcome.filled.size(), readBefore);
    for (const std::string& filled : outcome.filled) {
      EXPECT_EQ(std::ranges::count(all, filled), 1) << filled;
    }
    readBefore += ReadsAValue(outcome.failedCall) ? 1U : 0U;
  }
  EXPECT_EQ(all.size(), readBefore);
}

}  // namespace qorltst::testing
