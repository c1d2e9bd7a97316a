// See Html.h.
#include "tools/report/Html.h"

#include <algorithm>
#include <array>

#include "tools/model/ValueText.h"

namespace qorltst::report {
namespace {

struct Entity {
  char character;
  std::string_view text;
};

constexpr std::array kEntities{Entity{'&', "&amp;"}, Entity{'<', "&lt;"}, Entity{'>', "&gt;"}, Entity{'"', "&quot;"},
                               Entity{'\'', "&#39;"}};

std::string WithEntities(const std::string& printable) {
  std::string escaped;
  escaped.reserve(printable.size());
  for (const char character : printable) {
    const auto* const entity = std::ranges::find(kEntities, character, &Entity::character);
    if (entity != kEntities.end()) {
      escaped += entity->text;
    } else {
      escaped += character;
    }
  }
  return escaped;
}

}  // namespace

std::string Escaped(std::u16string_view text) { return WithEntities(model::PrintableText(text)); }

std::string Escaped(std::string_view utf8) { return WithEntities(model::PrintableText(utf8)); }

void Html::Open(Markup tag, Attributes attributes) {
  written_.append("<").append(tag.Text());
  for (const Attribute& attribute : attributes) {
    written_.append(" ").append(attribute.name.Text());
    if (!attribute.value.empty()) {
      written_.append("=\"").append(Escaped(std::string_view(attribute.value))).append("\"");
    }
  }
  written_ += '>';
}

void Html::Close(Markup tag) { written_.append("</").append(tag.Text()).append(">"); }

}  // namespace qorltst::report
