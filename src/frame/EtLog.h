// The component's log front: turns traces, host errors and runtime errors into entries of the toolkit's logger.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/ClassDescription.h"
#include "frame/Object.h"
#include "toolkit/HostNumbers.h"
#include "toolkit/Toolkit.h"

namespace qorltst {

/// Every object of the component has one of its own, and callers may create more. No operation ever fails: a
/// failing logger is ignored. The logger is made on the first entry and kept.
class EtLog final : public Object {
 public:
  static const ClassDescription kDescription;

  explicit EtLog(toolkit::Toolkit& toolkit) noexcept;
  ~EtLog() override;

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Writes the pending runtime error with host error 3004, or `message` as an error without a number where
  /// nothing is pending.
  void Log(std::u16string_view source = {}, std::u16string_view message = {}) noexcept;

  /// Writes a host error with its text; the text of an unknown number is empty.
  void LogHostError(std::int32_t number, std::u16string_view source = {}) noexcept;

  /// Writes "description - message" under the number of the pending runtime error, not under `number`; that is
  /// meant. Then writes `hostError` unless it is 0.
  void LogVbError(std::int16_t number, std::u16string_view description, std::u16string_view source = {},
                  std::u16string_view message = {}, std::int32_t hostError = 0) noexcept;

  /// The prefix of every entry's source, "QorlTST." until somebody changes it.
  [[nodiscard]] std::u16string_view Source() const noexcept;
  void SetSource(std::u16string_view prefix);

  /// Writes a host error number with its text as a warning.
  void LogParseWarning(std::int32_t number, std::u16string_view source = {}) noexcept;

  /// As `LogVbError`, the first entry as a warning.
  void LogVbWarning(std::int16_t number, std::u16string_view description, std::u16string_view source = {},
                    std::u16string_view message = {}, std::int32_t hostError = 0) noexcept;

  /// Writes a trace line.
  void LogTrace(std::u16string_view message, std::u16string_view source = {}) noexcept;

  /// The toolkit that this log gets its logger from.
  [[nodiscard]] toolkit::Toolkit& Toolkit() const noexcept { return *toolkit_; }

 private:
  struct Table;

  void Write(toolkit::LogKind kind, std::u16string_view source, std::int32_t number,
             std::u16string_view message) noexcept;
  void WriteRuntimeError(toolkit::LogKind kind, std::u16string_view description, std::u16string_view source,
                         std::u16string_view message, std::int32_t hostError) noexcept;
  void MakeLogger();

  Ref<toolkit::Toolkit> toolkit_;
  Ref<toolkit::HostLogger> logger_;
  /// Absent while the prefix is the usual one, as it is for all but a few: every object carries this member.
  std::unique_ptr<std::u16string> prefix_;
};

/// The message text of a host error number; empty for a number that is not in the table.
[[nodiscard]] std::u16string_view HostErrorText(std::int32_t number) noexcept;

}  // namespace qorltst
