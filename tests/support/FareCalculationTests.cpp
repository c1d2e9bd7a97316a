// See FareCalculationTests.h.
#include "tests/support/FareCalculationTests.h"

#include <algorithm>
#include <array>
#include <limits>

#include "frame/Collection.h"
#include "tests/support/ElementTests.h"

namespace qorltst::testing {
namespace {

using Strings = std::vector<std::string>;

/// The types that are swept, each range with its end: all that a fare calculation may hold, and a margin.
constexpr std::array<std::array<std::int32_t, 2>, 2> kSweptTypes{{{-2, 1300}, {2680, 2940}}};

/// A type that no class knows.
constexpr std::int32_t kUnknownType = -7;

/// As many calls as there are.
constexpr std::size_t kWholeStory = std::numeric_limits<std::size_t>::max();

const toolkit::RuntimeError& ToolkitFailure() {
  static const toolkit::RuntimeError kFailure(1234, u"Toolkit.Node", u"It broke");
  return kFailure;
}

void AddContents(Object& object, const std::string& path, Strings& contents);

void AddObject(Object* object, const std::string& path, Strings& contents) {
  if (object == nullptr) {
    return;
  }
  const auto* const collection = dynamic_cast<Collection*>(object);
  if (collection == nullptr) {
    AddContents(*object, path + ".", contents);
    return;
  }
  for (std::int32_t i = 1; i <= collection->Count(); ++i) {
    const std::string item = path + "(" + std::to_string(i) + ")";
    contents.push_back(item);
    AddContents(*collection->Item(i), item + ".", contents);
  }
}

void AddContents(Object& object, const std::string& path, Strings& contents) {
  for (const Member& row : object.Description().members) {
    const std::string name = path + Readable(row.name);
    if (const auto* const text = std::get_if<StringField>(&row.access); text != nullptr && !text->in(object).empty()) {
      contents.push_back(name + "=" + Readable(text->in(object)));
    } else if (const auto* const flag = std::get_if<BooleanField>(&row.access); flag != nullptr && flag->in(object)) {
      contents.push_back(name + "=True");
    } else if (const auto* const child = std::get_if<ObjectField>(&row.access)) {
      AddObject(child->in(object), name, contents);
    }
  }
}

Strings Split(const std::string& text, const std::string& separator) {
  Strings parts;
  std::size_t begin = 0;
  for (std::size_t end = text.find(separator); end != std::string::npos; end = text.find(separator, begin)) {
    parts.push_back(text.substr(begin, end - begin));
    begin = end + separator.size();
  }
  parts.push_back(text.substr(begin));
  return parts;
}

Strings Sorted(Strings strings) {
  std::ranges::sort(strings);
  return strings;
}

Tree Nested(std::int32_t root, const std::vector<std::int32_t>& groups, Tree innermost) {
  for (auto group = groups.rbegin(); group != groups.rend(); ++group) {
    innermost = Tree{*group, u"group", {innermost}};
  }
  return {root, u"", {innermost}};
}

}  // namespace

std::vector<std::string> Contents(Object& object) {
  Strings contents;
  AddContents(object, "", contents);
  return contents;
}

Story Asks(std::size_t traps, const std::string& calls) {
  Story story;
  for (const std::string& each : Split(calls, ", ")) {
    const Strings parts = Split(each, " => ");
    story.push_back({.traps = traps, .calls = {parts.front()}});
    if (parts.size() > 1) {
      story.push_back({.values = {parts.back()}});
    }
  }
  return story;
}

Story Writes(std::u16string_view message, std::u16string_view source) {
  return {{.lines = {TraceEntry(message, source)}}};
}

Story Sets(std::vector<std::string> values) { return {{.values = std::move(values)}}; }

Story Tell(const std::vector<Story>& chapters) {
  Story story;
  for (const Story& chapter : chapters) {
    story.insert(story.end(), chapter.begin(), chapter.end());
  }
  return story;
}

RecordFixture::RecordFixture(Create create, FillRecord fill)
    : record_(create(*toolkit_)), create_(create), fill_(fill) {}

void RecordFixture::Fill(Tree node) { fill_(*record_, *toolkit_->Node(std::move(node))); }

std::vector<std::string> RecordFixture::FilledFrom(Tree node) {
  Fill(std::move(node));
  return Contents(*record_);
}

std::string RecordFixture::FailureOf(Tree node) {
  try {
    Fill(std::move(node));
  } catch (const toolkit::RuntimeError& error) {
    return NumberAndSource(error);
  }
  return "no failure";
}

std::string RecordFixture::FillFresh(const Tree& node) {
  toolkit_->calls.clear();
  toolkit_->log.clear();
  record_ = create_(*toolkit_);
  return FailureOf(node);
}

std::vector<std::string> RecordFixture::ContentsOfFresh(const Tree& node) {
  const std::string failure = FillFresh(node);
  Strings contents = Contents(*record_);
  if (failure != "no failure") {
    contents.push_back(failure);
  }
  return contents;
}

std::vector<std::string> RecordFixture::StoredBelow(std::int32_t type, const std::vector<std::int32_t>& groups) {
  const Strings always = ContentsOfFresh(Nested(type, groups, {kUnknownType, u"unknown"}));
  Strings stored;
  for (const auto& [first, last] : kSweptTypes) {
    for (std::int32_t swept = first; swept <= last; ++swept) {
      SweepType(type, groups, swept, always, stored);
    }
  }
  return stored;
}

void RecordFixture::SweepType(std::int32_t root, const std::vector<std::int32_t>& groups, std::int32_t swept,
                              const std::vector<std::string>& always, std::vector<std::string>& stored) {
  const Strings contents = ContentsOfFresh(Nested(root, groups, {swept, u"text", {{kUnknownType, u"below"}}}));
  std::ptrdiff_t storedTexts = 0;
  for (const std::string& value : contents) {
    if (std::ranges::count(always, value) == 0) {
      stored.push_back(std::to_string(swept) + " " + value);
      storedTexts += value.ends_with("=text") ? 1 : 0;
    }
  }
  if (swept != root && std::ranges::count(groups, swept) == 0) {
    EXPECT_EQ(std::ranges::count(toolkit_->calls, "Text " + std::to_string(swept)), storedTexts);
  }
}

void RecordFixture::ExpectPart(const Story& story, std::size_t calls) {
  Step told;
  for (const Step& step : story) {
    if (told.calls.size() == calls && !step.calls.empty()) {
      break;
    }
    told.calls.insert(told.calls.end(), step.calls.begin(), step.calls.end());
    // What follows the call that fails is not reached.
    if (told.calls.size() < calls || calls == kWholeStory) {
      told.lines.insert(told.lines.end(), step.lines.begin(), step.lines.end());
      told.values.insert(told.values.end(), step.values.begin(), step.values.end());
    }
  }
  EXPECT_EQ(toolkit_->calls, told.calls);
  EXPECT_EQ(toolkit_->log, told.lines);
  EXPECT_EQ(Sorted(Contents(*record_)), Sorted(told.values));
}

void RecordFixture::ExpectStory(const Tree& node, const Story& story) {
  EXPECT_EQ(FillFresh(node), "no failure");
  ExpectPart(story, kWholeStory);
}

void RecordFixture::ExpectStoryToStopAtEveryFailure(const Tree& node, const Story& story) {
  std::size_t call = 0;
  for (const Step& step : story) {
    if (step.calls.empty()) {
      continue;
    }
    SCOPED_TRACE("call " + std::to_string(++call) + ": " + step.calls.front());
    toolkit_->calls.clear();
    toolkit_->FailAt(call, ToolkitFailure());
    EXPECT_EQ(FillFresh(node), Climbed(ToolkitFailure(), step.traps));
    ExpectPart(story, call);
  }
  toolkit_->calls.clear();
  toolkit_->FailAt(call + 1, ToolkitFailure());
  EXPECT_EQ(FillFresh(node), "no failure") << "a call that the story does not tell";
}

}  // namespace qorltst::testing
