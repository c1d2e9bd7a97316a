// The cursor of one line. See LineReader.h.
#include "simulator/LineReader.h"

#include "toolkit/HostNumbers.h"

namespace qorltst::simulator {

LineReader::LineReader(const DisplayLine& line, TreeNode& node) : node_(node), rest_{line.text, 0} {
  rest_.Take(line.Label().size());
  SkipBlanks();
}

Field LineReader::Peek() const {
  Field rest = rest_;
  return rest.Take(rest.text.find(u' '));
}

Field LineReader::Next() {
  const Field field = rest_.Take(rest_.text.find(u' '));
  SkipBlanks();
  return field;
}

Field LineReader::Rest() { return rest_.Take(rest_.text.size()); }

void LineReader::BackTo(const Field& field) {
  rest_ = {{field.text.data(), rest_.position + rest_.text.size() - field.position}, field.position};
  SkipBlanks();
}

std::u16string LineReader::FreeText() {
  std::u16string text;
  while (!AtEnd()) {
    const std::size_t untilRowEnd = toolkit::kLineLength - rest_.position % toolkit::kLineLength;
    const std::u16string_view row = rest_.Take(untilRowEnd).text;
    text += row.substr(0, row.find_last_not_of(u' ') + 1);
    SkipBlanks();
    text += AtEnd() ? u"" : u" ";
  }
  return text;
}

void LineReader::Warn(const Field& field, std::u16string_view reason) const {
  const std::u16string warning = DescribePlace(field.position).append(u": ").append(reason);
  node_.AddWarning(warning);
  if (element_) {
    element_->AddWarning(warning);
  }
}

void LineReader::WarnExpected(const Field& field, std::u16string_view name) const {
  Warn(field, std::u16string(name).append(u" expected"));
}

void LineReader::SkipBlanks() { rest_.Take(std::min(rest_.text.find_first_not_of(u' '), rest_.text.size())); }

}  // namespace qorltst::simulator
