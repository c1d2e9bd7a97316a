// A host session that plays a recording, and can be told to fall silent or to fail.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "simulator/Recording.h"
#include "toolkit/HostSession.h"

namespace qorltst::simulator {

/// Answers a recorded command with its first screen and "MD" with the screens after it. To anything else, to "MD"
/// before any display and to "MD" after the last screen it answers as a host does that did not understand: a screen of
/// one line that is no TST and says that nothing follows. Not for use from two threads at once.
class RecordedSession final : public toolkit::HostSession {
 public:
  struct Command {
    std::u16string text;
    bool wait = false;
    friend bool operator==(const Command&, const Command&) = default;
  };

  struct Option {
    std::int32_t option = 0;
    bool value = false;
    friend bool operator==(const Option&, const Option&) = default;
  };

  explicit RecordedSession(Recording recording) : recording_(std::move(recording)) {}

  /// Raises `RecordingError`.
  [[nodiscard]] static toolkit::Ref<RecordedSession> Load(const std::filesystem::path& file);

  toolkit::Ref<toolkit::HostResponse> SendCommand(std::u16string_view command, bool wait) override;

  void SetOption(std::int32_t option, bool value) override { options_.push_back({option, value}); }

  /// The `call`-th `SendCommand` from the beginning, counted from 1, gives no response. It moves to no other screen.
  void AnswerNothingAt(std::size_t call) { faults_[call] = std::nullopt; }

  /// The `call`-th `SendCommand` raises the runtime error of this number. It moves to no other screen.
  void FailAt(std::size_t call, std::int32_t number) { faults_[call] = number; }

  /// How often `SendCommand` was called, the failing calls included.
  [[nodiscard]] std::size_t Calls() const noexcept { return commands_.size(); }

  [[nodiscard]] const std::vector<Command>& Commands() const noexcept { return commands_; }

  [[nodiscard]] const std::vector<Option>& Options() const noexcept { return options_; }

 private:
  [[nodiscard]] const std::u16string* MoveDown();
  [[nodiscard]] toolkit::Ref<toolkit::HostResponse> Answer(std::u16string_view command);

  Recording recording_;
  /// What happens at a call instead of an answer: an error, or nothing.
  std::map<std::size_t, std::optional<std::int32_t>> faults_;
  /// The display that "MD" pages through; absent before the first one.
  std::optional<std::size_t> exchange_;
  std::size_t screen_ = 0;
  std::vector<Command> commands_;
  std::vector<Option> options_;
};

}  // namespace qorltst::simulator
