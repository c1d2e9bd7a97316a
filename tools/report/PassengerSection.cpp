// The passengers. See Sections.h.
#include <array>

#include "tools/report/Columns.h"
#include "tools/report/Facts.h"
#include "tools/report/Sections.h"

namespace qorltst::report {
namespace {

constexpr std::array kColumns{
    Column{"No.", u"ElementNumber"},          Column{"Last name", u"LastName"}, Column{"First name", u"Initial"},
    Column{"Type", u"PassengerType"},         Column{"Identity", u"IdNumber"},  Column{"Extra seat", u"ExtraSeat"},
    Column{"Cabin baggage", u"CabinBaggage"},
};

}  // namespace

void WritePassengers(Page& page, TST& ticket) {
  const std::vector<Object*> names = ItemsOf(ticket, u"NameElements");
  if (names.empty()) {
    return;
  }
  const auto section = page.Section("passengers", "Passengers");
  const auto frame = WideFrame(page.Out(), "Table of passengers");
  const auto table = page.Out().In("table");
  page.Out().Add("caption", std::string_view("Passengers"), {{"class", "spoken"}});
  WriteHeadings(page.Out(), kColumns);
  const auto body = page.Out().In("tbody");
  for (Object* const name : names) {
    WriteRow(page, *name, kColumns, "Passenger");
  }
}

}  // namespace qorltst::report
