// "I-12NOV26 LON": where the journey starts, and since when after a reissue or a rerouting.
#include "simulator/FieldShape.h"
#include "simulator/HostDate.h"
#include "simulator/farecalc/Grammar.h"
#include "simulator/farecalc/Shapes.h"

namespace qorltst::simulator {
namespace {

constexpr std::size_t kDayAndMonth = 5;
constexpr std::size_t kWholeDate = 7;

bool StartsRerouting(const FareCursor& cursor) { return cursor.Sees(shape::Is(u"I"), shape::Tight(shape::Is(u"-"))); }

bool StartsDate(const FareCursor& cursor) {
  return cursor.Sees(shape::Digits(2), shape::Tight([](const Token& token) {
                       return token.kind == TokenKind::Letters && token.text.size() >= 3;
                     }));
}

void ReadDate(FareCursor& cursor, TreeNode& parent, NodeTypeId type) {
  const std::u16string_view word = cursor.Word();
  const bool hasYear = word.size() >= kWholeDate && IsDigits(word.substr(kDayAndMonth, 2));
  const std::u16string_view date = word.substr(0, hasYear ? kWholeDate : kDayAndMonth);
  if (hasYear ? !ReadHostDate(date) : !IsDayAndMonth(date)) {
    cursor.Warn(u"date expected");
  }
  cursor.Add(parent, type, date.size());
}

void ReadDepartureCity(FareCursor& cursor, TreeNode& parent, NodeTypeId type) {
  if (cursor.Sees(shape::City)) {
    cursor.Add(parent, type);
  } else {
    cursor.Warn(u"departure city expected");
  }
}

void ReadDated(FareCursor& cursor, TreeNode& group) {
  ReadDate(cursor, group, NodeTypeId::RoutingDate);
  ReadDepartureCity(cursor, group, NodeTypeId::ReroutingCity);
}

void ReadRerouting(FareCursor& cursor, TreeNode& group) {
  cursor.Add(group, NodeTypeId::InvoluntaryRerouting, 2);
  if (StartsDate(cursor)) {
    ReadDate(cursor, group, NodeTypeId::ReroutingDate);
  }
  ReadDepartureCity(cursor, group, NodeTypeId::ReroutingCity);
}

}  // namespace

void ReadDeparturePoint(FareCursor& cursor, TreeNode& line) {
  cursor.Cover(line, NodeTypeId::DeparturePoint, [&](TreeNode& point) {
    if (StartsRerouting(cursor)) {
      cursor.Cover(point, NodeTypeId::ReroutingGroup, [&](TreeNode& group) { ReadRerouting(cursor, group); });
    } else if (StartsDate(cursor)) {
      cursor.Cover(point, NodeTypeId::DepartureGroup, [&](TreeNode& group) { ReadDated(cursor, group); });
    } else {
      ReadDepartureCity(cursor, point, NodeTypeId::DepartureCity);
    }
  });
}

}  // namespace qorltst::simulator
