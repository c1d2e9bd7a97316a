// The walk goes by dispatch ids, so that it needs no memory for names. See WholeModel.h.
#include "support/WholeModel.h"

#include "frame/ClassDescription.h"
#include "frame/Collection.h"

namespace qorltst::automation::test {
namespace {

using VisitAnswer = std::function<void(const Answer&)>;
using VisitObject = std::function<void(const ComRef<IDispatch>&)>;

bool IsCollection(const ClassDescription& description) { return &description == &Collection::kDescription; }

void Walk(const ComRef<IDispatch>& face, const VisitObject& object, const VisitAnswer& answer) {
  const Ref<Object> own = OwnObject(face.Get());
  if (!own) {
    return;
  }
  object(face);
  const Client client(face);
  const auto visit = [&](const Answer& read) {
    answer(read);
    if (const ComRef<IDispatch> child = read.Object()) {
      Walk(child, object, answer);
    }
  };
  for (const Member& row : own->Description().members) {
    if (!std::holds_alternative<Method>(row.access)) {
      visit(client.Call(own->Description().DispatchIdOf(row)));
    }
  }
  const std::int32_t items = IsCollection(own->Description()) ? static_cast<const Collection&>(*own).Count() : 0;
  for (std::int32_t i = 1; i <= items; ++i) {
    visit(client.Call(DISPID_VALUE, {Number(i)}));
  }
}

}  // namespace

void ReadEverything(const ComRef<IDispatch>& root, const VisitAnswer& visit) {
  Walk(
      root, [](const ComRef<IDispatch>&) {}, visit);
}

std::vector<ComRef<IUnknown>> EveryInterface(const ComRef<IDispatch>& root) {
  std::vector<ComRef<IUnknown>> all;
  const auto keep = [&all](const ComRef<IDispatch>& face) {
    all.push_back(Query<IUnknown>(face.Get()));
    const Answer enumerator = Client(face).Call(DISPID_NEWENUM);
    if (enumerator.code == S_OK) {
      all.push_back(ComRef<IUnknown>(enumerator.value.Get().punkVal));
    }
  };
  Walk(root, keep, [](const Answer&) {});
  return all;
}

}  // namespace qorltst::automation::test
