// The session file reader: lines to exchanges; what a screen line says is RecordingLine.cpp. See RecordingReader.h.
#include "simulator/RecordingReader.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <limits>
#include <utility>
#include <vector>

#include "simulator/RecordingLine.h"
#include "simulator/Screen.h"
#include "simulator/Utf.h"

namespace qorltst::simulator {
namespace {

constexpr std::u16string_view kScreenSeparator = u"---";
constexpr std::u16string_view kPagingDirective = u"@page";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::u16string_view Trimmed(std::u16string_view text) {
  const std::size_t first = std::min(text.find_first_not_of(u' '), text.size());
  return text.substr(first, text.find_last_not_of(u' ') + 1 - first);
}

/// The bytes of a line that is longer than any line of a session file could be.
constexpr std::size_t kLineLimit = 4096;

}  // namespace

class RecordingReader::Reading {
 public:
  Reading(std::istream& stream, std::string name, std::u16string_view impliedCommand)
      : stream_(stream), name_(std::move(name)), impliedCommand_(impliedCommand) {}

  std::optional<Exchange> Next() {
    try {
      return ReadExchange();
    } catch (const std::invalid_argument& error) {
      // What is left of the damaged answer is not read: it ends where the next command stands.
      exchange_.reset();
      lines_.clear();
      screenIsDue_ = false;
      skipping_ = true;
      throw RecordingError(name_ + ":" + std::to_string(lineNumber_) + ": " + error.what());
    }
  }

  [[nodiscard]] std::optional<std::u16string_view> Ahead() const { return command_; }

 private:
  std::optional<Exchange> ReadExchange() {
    if (command_) {
      BeginExchange(*std::exchange(command_, std::nullopt));
    }
    while (NextLine()) {
      if (line_.starts_with(u'#')) {
        continue;
      }
      if (line_.starts_with(u'>')) {
        command_ = Trimmed(std::u16string_view(line_).substr(1));
        if (exchange_) {
          return EndExchange();
        }
        BeginExchange(*std::exchange(command_, std::nullopt));
      } else {
        ReadAnswerLine(line_);
      }
    }
    return exchange_ ? std::optional(EndExchange()) : std::nullopt;
  }

  /// Takes the next line of the file that counts; false at the end.
  bool NextLine() {
    while (NextBytes()) {
      const bool isCommand = !bytes_.empty() && bytes_.front() == '>';
      if (skipping_ && !isCommand) {
        continue;
      }
      skipping_ = false;
      line_ = Decode(bytes_);
      return true;
    }
    return false;
  }

  /// Takes the bytes of the next line. A line that is longer than any line could be is no longer in memory for it.
  bool NextBytes() {
    stream_.getline(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
    const auto length = static_cast<std::size_t>(stream_.gcount());
    if (stream_.bad() && !std::exchange(isBroken_, true)) {
      throw std::invalid_argument("the file cannot be read any further");
    }
    if (stream_.bad() || (stream_.eof() && length == 0)) {
      return false;
    }
    ++lineNumber_;
    bytes_ = std::string_view(buffer_.data(), length);
    if (!stream_.fail() && !stream_.eof()) {
      bytes_.remove_suffix(1);
    } else if (!stream_.eof()) {
      SkipLine();
    }
    return true;
  }

  void SkipLine() {
    stream_.clear();
    stream_.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    if (!bytes_.starts_with('#')) {
      throw std::invalid_argument("the line is too long");
    }
    bytes_ = "#";
  }

  [[nodiscard]] std::u16string Decode(std::string_view line) const {
    if (lineNumber_ == 1 && line.starts_with(kByteOrderMark)) {
      line.remove_prefix(kByteOrderMark.size());
    }
    if (line.ends_with('\r')) {
      line.remove_suffix(1);
    }
    if (const auto damage = FindDamage(line)) {
      throw std::invalid_argument("byte " + std::to_string(*damage + 1) + " is not UTF-8");
    }
    return ToUtf16(line);
  }

  void ReadAnswerLine(std::u16string_view line) {
    if (!exchange_) {
      if (Trimmed(line).empty()) {
        return;
      }
      if (impliedCommand_.empty() && !line.starts_with(u'@')) {
        throw std::invalid_argument("a screen must follow its command (> TQT)");
      }
      if (!impliedCommand_.empty()) {
        BeginExchange(impliedCommand_);
      }
    }
    if (line.starts_with(u'@')) {
      ReadDirective(Trimmed(line));
    } else {
      ReadScreenLine(line);
    }
  }

  void BeginExchange(std::u16string_view command) {
    if (command.empty()) {
      throw std::invalid_argument("the command is missing");
    }
    exchange_ = Exchange{std::u16string(command), {}, lineNumber_};
    impliedCommand_.clear();
    linesPerScreen_ = 0;
  }

  /// "@page" or "@page 12": the answer is written as one display and cut into screens.
  void ReadDirective(std::u16string_view line) {
    const std::u16string_view number = Trimmed(line.substr(std::min(kPagingDirective.size(), line.size())));
    constexpr std::size_t kLongestNumber = 3;
    if (!line.starts_with(kPagingDirective) || number.size() > kLongestNumber ||
        number.find_first_not_of(u"0123456789") != std::u16string_view::npos) {
      throw std::invalid_argument("unknown directive");
    }
    if (!exchange_) {
      throw std::invalid_argument("@page must follow the command that it is for");
    }
    linesPerScreen_ = number.empty() ? kLinesPerScreen : std::stoul(ToUtf8(number));
    if (linesPerScreen_ < kFewestLinesPerScreen) {
      throw std::invalid_argument("a screen has three lines or more");
    }
  }

  void ReadScreenLine(std::u16string_view line) {
    if (line.starts_with(kScreenSeparator) && Trimmed(line) == kScreenSeparator) {
      EndScreen();
      screenIsDue_ = true;
      return;
    }
    lines_.push_back(ReadRecordingLine(line));
    if (!IsBlank(lines_.back()) && std::any_of(lines_.begin(), lines_.end() - 1, IsUnpadded)) {
      throw std::invalid_argument("only the last line of a screen may end with \\.");
    }
  }

  /// Blank lines at the end of a screen are left out, unless they are written with an escape.
  static bool IsBlank(const RecordingLine& line) { return Trimmed(line.text).empty() && !line.isKept; }
  static bool IsUnpadded(const RecordingLine& line) { return !line.isPadded; }

  Exchange EndExchange() {
    if (screenIsDue_ || std::ranges::find_if_not(lines_, IsBlank) != lines_.end()) {
      EndScreen();
    }
    lines_.clear();
    screenIsDue_ = false;
    return *std::exchange(exchange_, std::nullopt);
  }

  /// Makes the lines gathered so far a screen of the last command.
  void EndScreen() {
    while (!lines_.empty() && IsBlank(lines_.back())) {
      lines_.pop_back();
    }
    if (lines_.empty()) {
      throw std::invalid_argument("the screen beside --- is empty");
    }
    std::vector<std::u16string> texts;
    std::ranges::transform(lines_, std::back_inserter(texts), &RecordingLine::text);
    AddScreens(texts, lines_.back().isPadded);
    lines_.clear();
  }

  void AddScreens(const std::vector<std::u16string>& lines, bool isPadded) {
    const std::size_t lastLength = lines.back().size();
    std::vector<std::vector<std::u16string>> screens{lines};
    if (linesPerScreen_ != 0) {
      screens = Paginate(lines, linesPerScreen_);
    }
    std::vector<std::u16string>& texts = exchange_->screens;
    for (const std::vector<std::u16string>& screen : screens) {
      texts.push_back(JoinLines(screen));
    }
    if (!isPadded) {
      texts.back().resize((screens.back().size() - 1) * toolkit::kLineLength + lastLength);
    }
  }

  std::istream& stream_;
  std::string name_;
  /// Of the first display, where no command stands before it; empty from the first command on.
  std::u16string impliedCommand_;
  std::size_t lineNumber_ = 0;
  std::array<char, kLineLimit> buffer_{};
  /// The line that is being read, in the buffer and decoded.
  std::string_view bytes_;
  std::u16string line_;
  /// The command that ended the exchange before its own.
  std::optional<std::u16string> command_;
  std::optional<Exchange> exchange_;
  /// Behind an error, until the next command.
  bool skipping_ = false;
  bool isBroken_ = false;
  /// The screen that is being read.
  std::vector<RecordingLine> lines_;
  /// After a separator.
  bool screenIsDue_ = false;
  /// Zero where the answer is written screen by screen.
  std::size_t linesPerScreen_ = 0;
};

RecordingReader::RecordingReader(std::istream& stream, std::string name, std::u16string_view impliedCommand)
    : reading_(std::make_unique<Reading>(stream, std::move(name), impliedCommand)) {}

RecordingReader::~RecordingReader() = default;

std::optional<Exchange> RecordingReader::Next() { return reading_->Next(); }

std::optional<std::u16string_view> RecordingReader::Ahead() const { return reading_->Ahead(); }

Recording ReadRecording(std::istream& stream, const std::string& name) {
  RecordingReader reader(stream, name);
  Recording recording;
  while (auto exchange = reader.Next()) {
    if (std::ranges::find(recording, exchange->command, &Exchange::command) != recording.end()) {
      throw RecordingError(name + ":" + std::to_string(exchange->line) + ": the command is answered twice");
    }
    recording.push_back(*std::move(exchange));
  }
  return recording;
}

Recording ReadRecording(const std::filesystem::path& file) {
  const std::string name = ToUtf8(file.u16string());
  std::ifstream stream(file, std::ios::binary);
  if (!stream) {
    throw RecordingError(name + ": cannot be opened");
  }
  return ReadRecording(stream, name);
}

}  // namespace qorltst::simulator
