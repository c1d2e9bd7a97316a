// "NAMES 1.ORRIN/HALE MR (ADT+SRC/P4471902) EXST CBBG 2.ORRIN/TESS (CHD)": the passengers.
#include <algorithm>
#include <array>

#include "simulator/FieldShape.h"
#include "simulator/GroupNode.h"
#include "simulator/LineParts.h"
#include "simulator/SimulatorNumbers.h"
#include "simulator/lines/Lines.h"
#include "toolkit/HostNumbers.h"

namespace qorltst::simulator {
namespace {

constexpr ItemPart kLastName{NodeTypeId::LastName, u"last name", IsName};
constexpr ItemPart kInitial{NodeTypeId::Initial, u"first name or initial", IsName};
constexpr ItemPart kType{NodeTypeId::NamePassengerType, u"passenger type", IsPassengerType};
constexpr ItemPart kIdentity{NodeTypeId::IdNumber, u"identity number", IsCode};

struct Marker {
  std::u16string_view word;
  NodeTypeId type;
};

constexpr std::array kMarkers{Marker{u"EXST", NodeTypeId::ExtraSeat}, Marker{u"CBBG", NodeTypeId::CabinBaggage}};

const Marker* FindMarker(std::u16string_view word) {
  const auto* const found = std::ranges::find(kMarkers, word, &Marker::word);
  return found != kMarkers.end() ? found : nullptr;
}

bool StartsPassenger(const Field& field) { return IsDigits(field.text.substr(0, field.text.find(u'.'))); }

/// One more word, or the word that ends the last name and starts the first: "ORRIN/TESS" after "VAN".
bool IsNameWord(std::u16string_view text, bool hasSlash) {
  const std::size_t slash = hasSlash ? std::u16string_view::npos : text.find(u'/');
  return IsName(text.substr(0, slash)) && (slash == std::u16string_view::npos || IsName(text.substr(slash + 1)));
}

/// A name may have several words; none of them stands on another screen line than its first.
bool ContinuesName(const Field& name, const Field& field) {
  const bool hasSlash = name.text.find(u'/') != std::u16string_view::npos;
  return IsNameWord(field.text, hasSlash) && FindMarker(field.text) == nullptr &&
         field.position / toolkit::kLineLength == name.position / toolkit::kLineLength;
}

/// "1.ORRIN/HALE MR", number, last name and the rest.
Field ReadName(LineReader& reader, TreeNode& passenger, const Field& start) {
  Field name = start;
  while (ContinuesName(name, reader.Peek())) {
    const Field word = reader.Next();
    name.text = {name.text.data(), word.position + word.text.size() - name.position};
  }
  Field rest = name;
  passenger.Add(NodeTypeId::NameElementNumber, rest.TakeUntil(u'.').text);
  ReadPart(reader, passenger, rest, kLastName);
  AddPart(reader, passenger, rest, kInitial);
  return name;
}

/// "(ADT+SRC/P4471902)": passenger types, and an identity number where there is one.
void ReadInformation(const LineReader& reader, TreeNode& passenger, Field field) {
  const Ref<TreeNode> information = passenger.Add(NodeTypeId::PassengerInformation, field.text);
  field.Take(1);
  Field identity = field.TakeUntil(u')');
  if (!information->Text().ends_with(u')') || !field.Empty()) {
    reader.WarnExpected(field, u"closing bracket");
  }
  if (const Field types = identity.TakeUntil(u'/'); !types.Empty() || identity.Empty()) {
    ReadList(reader, *information->Add(NodeTypeId::PassengerTypeGroup, types.text), types, kType);
  }
  if (!identity.Empty()) {
    AddPart(reader, *information->Add(NodeTypeId::IdentityGroup, identity.text), identity, kIdentity);
  }
}

void ReadDetail(const LineReader& reader, TreeNode& passenger, const Field& field) {
  if (const Marker* const marker = FindMarker(field.text)) {
    passenger.Add(marker->type, field.text);
  } else if (field.text.starts_with(u'(')) {
    ReadInformation(reader, passenger, field);
  } else {
    reader.Warn(field, u"unknown item");
  }
}

void ReadPassenger(LineReader& reader, TreeNode& container) {
  const Field start = reader.Next();
  GroupNode passenger(container, kPassenger, start);
  reader.StartElement(passenger.Node());
  passenger.Cover(ReadName(reader, *passenger.Node(), start));
  while (!reader.AtEnd() && !StartsPassenger(reader.Peek())) {
    const Field detail = reader.Next();
    passenger.Cover(detail);
    ReadDetail(reader, *passenger.Node(), detail);
  }
}

}  // namespace

void ReadNamesLine(LineReader& reader) {
  const Ref<TreeNode> container = AddRest(reader, NodeTypeId::NameContainer, u"passenger");
  while (!reader.AtEnd()) {
    if (StartsPassenger(reader.Peek())) {
      ReadPassenger(reader, *container);
    } else {
      reader.WarnExpected(reader.Next(), u"passenger");
    }
  }
}

}  // namespace qorltst::simulator
