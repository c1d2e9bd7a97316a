// A toolkit in front of another one: every call is noted, and one call can go wrong in a way of the test's choice.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "toolkit/HostSession.h"
#include "toolkit/Toolkit.h"

namespace qorltst::testing {

/// The operations of parsers, nodes, enumerators, sessions and responses. Loggers are apart: their failures are never
/// seen.
enum class Operation : std::uint8_t {
  CreateParser,
  Parse,
  FindNode,
  TypeId,
  Text,
  ErrorText,
  HasWarning,
  HasChildren,
  DateValue,
  Item,
  Buffer,
  Children,
  Next,
  SendCommand,
  SetOption,
  ResponseText,
};

/// One call: what was asked, of which node type a search was, and how long the log was then.
struct NotedCall {
  Operation operation{};
  std::int32_t sought = 0;
  std::size_t logLength = 0;
};

/// Whether the thread is inside the toolkit now, and not in the component.
[[nodiscard]] bool InsideToolkit() noexcept;

/// Keeps what goes wrong and when; shared by everything that one toolkit has handed out.
class FaultPlan : public toolkit::RefCounted {
 public:
  /// What goes wrong at a call: `Raise` throws what the test gave, `Absent` answers with nothing where an object is
  /// expected (an enumerator ends early), `Refusal` lets a text be unreadable.
  enum class Kind : std::uint8_t { None, Raise, Absent, Refusal };

  /// The n-th call from now on (1 is the next) raises by this function, which must throw.
  void RaiseAt(std::size_t n, std::function<void()> raise);
  void AbsentAt(std::size_t n);
  void RefuseAt(std::size_t n);

  /// The n-th call of a logger, its creation included, raises.
  void RaiseInLoggerAt(std::size_t n, std::function<void()> raise);

  [[nodiscard]] const std::vector<NotedCall>& Calls() const noexcept { return calls_; }
  /// Every text that a node or an item has given.
  [[nodiscard]] const std::set<std::u16string>& Texts() const noexcept { return texts_; }
  [[nodiscard]] std::size_t LoggerCalls() const noexcept { return loggerCalls_; }
  /// Whether the fault has come up.
  [[nodiscard]] bool Struck() const noexcept { return struck_; }

  /// What the length of the log is taken from.
  std::function<std::size_t()> logLength = [] { return std::size_t{0}; };

  // For the wrappers.

  /// Notes a call. Raises if that is its fault; `possible` says which other fault it can show.
  Kind Called(Operation operation, Kind possible = Kind::None, std::int32_t sought = 0);
  void LoggerCalled();
  std::u16string Noted(std::u16string text);

 private:
  void Arm(std::size_t n, Kind kind, std::function<void()> raise);

  std::vector<NotedCall> calls_;
  std::set<std::u16string> texts_;
  std::size_t loggerCalls_ = 0;
  std::size_t at_ = 0;
  std::size_t loggerAt_ = 0;
  Kind kind_ = Kind::None;
  std::function<void()> raise_;
  bool struck_ = false;
};

class FaultingToolkit final : public toolkit::Toolkit {
 public:
  explicit FaultingToolkit(toolkit::Ref<toolkit::Toolkit> inner);

  toolkit::Ref<toolkit::ParseNode> CreateParser() override;
  toolkit::Ref<toolkit::HostLogger> CreateLogger() override;

  [[nodiscard]] FaultPlan& Plan() const noexcept { return *plan_; }

  /// A session whose calls are noted too.
  [[nodiscard]] toolkit::Ref<toolkit::HostSession> Wrap(toolkit::Ref<toolkit::HostSession> session) const;

 private:
  toolkit::Ref<toolkit::Toolkit> inner_;
  toolkit::Ref<FaultPlan> plan_;
};

}  // namespace qorltst::testing
