// See ModelWalk.h.
#include "tools/model/ModelWalk.h"

#include "tools/model/ValueText.h"

namespace qorltst::model {
namespace {

void Walk(const std::string& path, Object& object, const ObjectVisitor& visit) {
  if (!visit(path, object)) {
    return;
  }
  const std::string prefix = path.empty() ? path : path + '.';
  ForEachProperty(object, Filter{.empty = true}, [&](const Property& property) {
    Object* const* const child = std::get_if<Object*>(&property.content);
    if (child == nullptr || *child == nullptr) {
      return;
    }
    const Collection* const collection = AsCollection(**child);
    if (collection == nullptr) {
      Walk(prefix + NameText(property.row.name), **child, visit);
      return;
    }
    std::int32_t index = 0;
    ForEachItem(*collection, [&](Object& item) { Walk(prefix + ItemName(property.row.name, ++index), item, visit); });
  });
}

}  // namespace

void WalkObjects(Object& root, const ObjectVisitor& visit) { Walk({}, root, visit); }

std::string ItemName(std::u16string_view collection, std::int32_t index) {
  return NameText(collection) + '(' + std::to_string(index) + ')';
}

}  // namespace qorltst::model
