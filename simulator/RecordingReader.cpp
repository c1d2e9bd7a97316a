// The session file reader: lines to exchanges; what a screen line says is RecordingLine.cpp. See RecordingReader.h.
#include "simulator/RecordingReader.h"

#include <algorithm>
#include <fstream>
#include <iterator>

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

class RecordingReader {
 public:
  explicit RecordingReader(std::string name) : name_(std::move(name)) {}

  Recording Read(std::istream& stream) {
    std::string line;
    try {
      while (std::getline(stream, line)) {
        ++lineNumber_;
        ReadLine(Decode(line));
      }
      EndExchange();
    } catch (const std::invalid_argument& error) {
      throw RecordingError(name_ + ":" + std::to_string(lineNumber_) + ": " + error.what());
    }
    return std::move(recording_);
  }

 private:
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

  void ReadLine(std::u16string_view line) {
    if (line.starts_with(u'#')) {
      return;
    }
    if (line.starts_with(u'>')) {
      BeginExchange(Trimmed(line.substr(1)));
    } else if (line.starts_with(u'@')) {
      ReadDirective(Trimmed(line));
    } else if (!recording_.empty()) {
      ReadScreenLine(line);
    } else if (!Trimmed(line).empty()) {
      throw std::invalid_argument("a screen must follow its command (> TQT)");
    }
  }

  void BeginExchange(std::u16string_view command) {
    EndExchange();
    if (command.empty()) {
      throw std::invalid_argument("the command is missing");
    }
    if (std::ranges::find(recording_, command, &Exchange::command) != recording_.end()) {
      throw std::invalid_argument("the command is answered twice");
    }
    recording_.push_back({std::u16string(command), {}});
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
    if (recording_.empty()) {
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

  void EndExchange() {
    if (screenIsDue_ || std::ranges::find_if_not(lines_, IsBlank) != lines_.end()) {
      EndScreen();
    }
    lines_.clear();
    screenIsDue_ = false;
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
    std::vector<std::u16string>& texts = recording_.back().screens;
    for (const std::vector<std::u16string>& screen : screens) {
      texts.push_back(JoinLines(screen));
    }
    if (!isPadded) {
      texts.back().resize((screens.back().size() - 1) * toolkit::kLineLength + lastLength);
    }
  }

  std::string name_;
  std::size_t lineNumber_ = 0;
  Recording recording_;
  /// The screen that is being read.
  std::vector<RecordingLine> lines_;
  /// After a separator.
  bool screenIsDue_ = false;
  /// Zero where the answer is written screen by screen.
  std::size_t linesPerScreen_ = 0;
};

}  // namespace

Recording ReadRecording(std::istream& stream, const std::string& name) { return RecordingReader(name).Read(stream); }

Recording ReadRecording(const std::filesystem::path& file) {
  const std::string name = ToUtf8(file.u16string());
  std::ifstream stream(file, std::ios::binary);
  if (!stream) {
    throw RecordingError(name + ": cannot be opened");
  }
  return ReadRecording(stream, name);
}

}  // namespace qorltst::simulator
