// See Samples.h.
#include "tests/tools/support/Samples.h"

#include <algorithm>
#include <filesystem>

#include "frame/ClassDescription.h"
#include "simulator/RecordedSession.h"

namespace qorltst::testing {
namespace {

const std::filesystem::path kFolder = std::filesystem::path(QORL_SOURCE_DIR) / "examples/displays";

struct Filler {
  Object& object;
  std::u16string_view text;

  void operator()(const StringField& field) const { field.in(object) = text; }
  void operator()(const BooleanField& field) const { field.in(object) = true; }
  void operator()(const DateField& field) const { field.in(object) = kFilledDate; }
  void operator()(const CurrencyField& field) const { field.in(object) = kFilledAmount; }
  void operator()(const LongField& /*given*/) const {}
  void operator()(const ObjectField& /*kept*/) const {}
  void operator()(const Method& /*none*/) const {}
};

}  // namespace

Ref<TST> SampleTicket(const std::string& file, std::u16string_view command) {
  const auto toolkit = Make<simulator::SimulatedToolkit>();
  auto ticket = Make<TST>(*toolkit);
  ticket->RetrieveSpecificTst(simulator::RecordedSession::Load(SamplePath(file)).Get(), command);
  return ticket;
}

std::string SamplePath(const std::string& file) { return (kFolder / file).string(); }

std::vector<std::string> SamplePaths() {
  std::vector<std::string> paths;
  for (const auto& entry : std::filesystem::directory_iterator(kFolder)) {
    paths.push_back(entry.path().string());
  }
  std::ranges::sort(paths);
  return paths;
}

void FillProperties(Object& object, std::u16string_view text) {
  for (const Member& row : object.Description().members) {
    std::visit(Filler{object, text}, row.access);
  }
}

}  // namespace qorltst::testing
