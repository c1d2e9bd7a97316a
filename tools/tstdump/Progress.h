// One line on a terminal that says how far a long batch has come.
#pragma once

#include <chrono>
#include <functional>
#include <ostream>

namespace qorltst::tstdump {

/// Says nothing in the first second, and speaks up a few times a second from then on.
class Progress {
 public:
  using Time = std::chrono::steady_clock::time_point;
  using Clock = std::function<Time()>;

  /// Without a stream it stays silent.
  explicit Progress(std::ostream* terminal, Clock clock = std::chrono::steady_clock::now);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress() { Clear(); }

  /// A display of this file is done.
  void Count(const std::string& file);

  /// Takes the line away, before something else is written to the terminal.
  void Clear();

 private:
  std::ostream* terminal_;
  Clock clock_;
  Time started_;
  Time next_;
  std::size_t displays_ = 0;
  bool isShown_ = false;
};

}  // namespace qorltst::tstdump
