// A host toolkit for tests: trees and screens stand in the test, every call is counted, and any call can fail.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/HostNumbers.h"
#include "toolkit/HostSession.h"
#include "toolkit/RuntimeError.h"
#include "toolkit/Toolkit.h"

namespace qorltst::testing {

using toolkit::NodeTypeId;
using toolkit::Ref;

/// A node as a test writes it: `Tree{2850, u"FARE", {{147, u"EUR"}, {2717, u"120.00"}}}`.
struct Tree {
  std::int32_t type = 0;
  std::u16string text = {};
  std::vector<Tree> children = {};
  std::u16string errorText = {};
  bool warning = false;
  double date = 0;
  std::optional<std::u16string> buffer = std::nullopt;

  [[nodiscard]] Tree WithError(std::u16string text) const;
  [[nodiscard]] Tree WithWarning() const;
  [[nodiscard]] Tree WithDate(double days) const;
  [[nodiscard]] Tree WithBuffer(std::u16string text) const;
};

/// What the parser makes of a text.
struct Parsed {
  std::int32_t result = toolkit::kParseSuccess;
  std::vector<Tree> nodes = {};
};

/// One entry of the log.
struct Entry {
  std::int32_t kind = 0;
  std::u16string source;
  std::int32_t number = 0;
  std::u16string message;
  friend bool operator==(const Entry&, const Entry&) = default;
};

/// A trace line as the component writes it; the prefix is put in front of the source here.
[[nodiscard]] Entry TraceEntry(std::u16string_view message, std::u16string_view source);

/// An error entry for a host error number.
[[nodiscard]] Entry HostErrorEntry(std::int32_t number, std::u16string_view source, std::u16string_view text);

/// The begin line, what is between, and the end line of a procedure that follows the usual pattern.
[[nodiscard]] std::vector<Entry> Around(std::u16string_view operation, std::u16string_view className,
                                        std::vector<Entry> between = {});

/// What a header node without children writes.
[[nodiscard]] std::vector<Entry> EmptyHeaderLog();

/// Several logs one after another.
[[nodiscard]] std::vector<Entry> Concat(std::vector<std::vector<Entry>> logs);

class TestToolkit final : public toolkit::Toolkit {
 public:
  using Parser = std::function<Parsed(std::u16string_view)>;

  /// A toolkit whose parser makes this of any text.
  explicit TestToolkit(Parsed always = {});
  explicit TestToolkit(Parser parser) : parser_(std::move(parser)) {}

  Ref<toolkit::ParseNode> CreateParser() override;
  Ref<toolkit::HostLogger> CreateLogger() override;

  /// A node for a test that calls a fill itself. The toolkit must outlive it.
  [[nodiscard]] Ref<toolkit::ParseNode> Node(Tree tree);

  /// Every call to a parser, a node, an enumerator, a session or a response, in order ("Text 2717", "Next 602").
  std::vector<std::string> calls;

  /// Calls to loggers are kept apart: failures of theirs are never seen.
  std::vector<std::string> loggerCalls;
  std::vector<Entry> log;
  std::int32_t loggersCreated = 0;
  std::vector<std::u16string> applications;

  /// Makes the n-th call from now on (1 is the next) raise this error.
  void FailAt(std::size_t n, const toolkit::RuntimeError& error);

  /// The same for calls to loggers: every call whose name is this one.
  void FailLoggerCalls(std::string name) { failingLoggerCall_ = std::move(name); }

  /// Records a call and raises if it is the one that is to fail.
  void Called(std::string call);
  void LoggerCalled(const std::string& call);

  [[nodiscard]] Parsed Parse(std::u16string_view text) const { return parser_(text); }

 private:
  Parser parser_;
  std::size_t failAt_ = 0;
  std::optional<toolkit::RuntimeError> failure_;
  std::string failingLoggerCall_;
};

/// A session that answers with the given screens, one for each command; an absent screen is no answer.
class TestSession final : public toolkit::HostSession {
 public:
  explicit TestSession(TestToolkit& toolkit, std::deque<std::optional<std::u16string>> screens = {})
      : toolkit_(toolkit), screens_(std::move(screens)) {}

  Ref<toolkit::HostResponse> SendCommand(std::u16string_view command, bool wait) override;
  void SetOption(std::int32_t option, bool value) override;

  /// What was sent, with the options: "SetOption 322 0", "TQT", "MD".
  std::vector<std::u16string> commands;

 private:
  TestToolkit& toolkit_;
  std::deque<std::optional<std::u16string>> screens_;
};

/// A line of 80 characters.
[[nodiscard]] std::u16string Line(std::u16string_view text);

/// A screen of such lines.
[[nodiscard]] std::u16string Screen(const std::vector<std::u16string>& lines);

}  // namespace qorltst::testing
