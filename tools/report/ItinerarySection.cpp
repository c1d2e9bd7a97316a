// The route line, and the table of segments. See Sections.h.
#include <algorithm>
#include <array>

#include "elements/ARNKSegment.h"
#include "elements/AirOpenSegment.h"
#include "tools/report/Columns.h"
#include "tools/report/Facts.h"
#include "tools/report/FareCheck.h"
#include "tools/report/Sections.h"

namespace qorltst::report {
namespace {

constexpr std::array kColumns{
    Column{"No.", u"ElementNumber"},
    Column{"From", u"BoardPoint"},
    Column{"Connection", u"ConnectId"},
    Column{"Carrier", u"AirLine"},
    Column{"Flight", u"FlightNumber"},
    Column{"Class", u"Class"},
    Column{"Date", u"DepartureDate"},
    Column{"Time", u"DepartureTime"},
    Column{"Status", u"ReservationStatus"},
    Column{"Fare basis", u"FareBasisId"},
    Column{"Passenger type", u"PassengerType"},
    Column{"Not before", u"NotValidBefore"},
    Column{"Not after", u"NotValidAfter"},
    Column{"Baggage", u"BaggageAllowance"},
};

/// The segments of all kinds as they are numbered; those without a number last.
std::vector<Object*> Segments(TST& ticket) {
  std::vector<Object*> segments;
  for (const std::u16string_view collection : {u"AirSegments", u"AirOpenSegments", u"ARNKSegments"}) {
    std::ranges::copy(ItemsOf(ticket, collection), std::back_inserter(segments));
  }
  const auto number = [](Object* segment) {
    const std::optional<Currency> amount = WholeAmount(Fact(*segment, u"ElementNumber"));
    return std::pair(!amount, amount.value_or(Currency{}).tenThousandths);
  };
  std::ranges::stable_sort(segments, {}, number);
  return segments;
}

bool IsSurface(const Object& segment) { return &segment.Description() == &ARNKSegment::kDescription; }

bool IsOpen(const Object& segment) { return &segment.Description() == &AirOpenSegment::kDescription; }

/// What is flown, in a few words: "QX 0341, 12DEC 0930, class Y, OK".
std::u16string Leg(Object& segment) {
  if (IsSurface(segment)) {
    return u"surface";
  }
  std::u16string leg = Fact(segment, u"AirLine") + u' ' + (IsOpen(segment) ? u"open" : Fact(segment, u"FlightNumber"));
  std::u16string when = Fact(segment, u"DepartureDate");
  if (!IsOpen(segment)) {
    when += u' ' + Fact(segment, u"DepartureTime");
  }
  for (const std::u16string& part : {when, u"class " + Fact(segment, u"Class")}) {
    leg += part.empty() ? u"" : u", " + part;
  }
  return IsOpen(segment) ? leg : leg + u", " + Fact(segment, u"ReservationStatus");
}

std::string KindOf(Object& segment) { return IsSurface(segment) ? "surface" : (IsOpen(segment) ? "open" : "flown"); }

std::u16string PlaceText(const std::u16string& place) { return place.empty() ? u"?" : place; }

void WriteRoute(Page& page, TST& ticket, const std::vector<Object*>& segments) {
  Html& html = page.Out();
  const auto list = html.In("ol", {{"class", "route"}, {"aria-label", "Route"}});
  for (Object* const segment : segments) {
    const auto item = html.In("li", {{"class", KindOf(*segment)}});
    const bool isConnection = !IsSurface(*segment) && Fact(*segment, u"ConnectId") == u"X";
    html.Add("span", std::u16string_view(PlaceText(Fact(*segment, u"BoardPoint"))),
             {{"class", isConnection ? "place connection" : "place"}});
    if (isConnection) {
      html.Add("span", std::string_view(" (connection)"), {{"class", "spoken"}});
    }
    html.Add("span", std::u16string_view(Leg(*segment)), {{"class", "leg"}});
  }
  const auto item = html.In("li", {{"class", "end"}});
  html.Add("span", std::u16string_view(PlaceText(Fact(*ChildOf(ticket, u"ItineraryLastLine"), u"DestinationCode"))),
           {{"class", "place"}});
}

}  // namespace

void WriteItinerary(Page& page, TST& ticket) {
  const std::vector<Object*> segments = Segments(ticket);
  if (segments.empty()) {
    return;
  }
  const auto section = page.Section("itinerary", "Itinerary");
  WriteRoute(page, ticket, segments);
  page.Warn("End of the itinerary", Fact(*ChildOf(ticket, u"ItineraryLastLine"), u"ErrorText"));
  Html& html = page.Out();
  const auto frame = WideFrame(html, "Segments");
  const auto table = html.In("table");
  html.Add("caption", std::string_view("Segments"));
  WriteHeadings(html, kColumns);
  const auto body = html.In("tbody");
  for (Object* const segment : segments) {
    WriteRow(page, *segment, kColumns, "Segment");
  }
}

}  // namespace qorltst::report
