// One overload for each type of property. See ModelText.h.
#include "fuzz/support/ModelText.h"

#include <array>
#include <bit>
#include <string>
#include <variant>

#include "frame/ClassDescription.h"
#include "frame/Collection.h"
#include "fuzz/support/Check.h"

namespace qorltst::fuzz {
namespace {

/// No retrieval leads deeper; a model that does has a circle in it.
constexpr int kDeepest = 16;

/// The properties that hold nothing until they are filled.
constexpr std::array<std::u16string_view, 2> kMayBeAbsent{u"FareMinimun", u"ExtraSeat"};

std::u16string Digits(std::uint64_t number) {
  const std::string text = std::to_string(number);
  return {text.begin(), text.end()};
}

class ModelWriter {
 public:
  [[nodiscard]] std::u16string Take() { return std::move(text_); }

  void Write(Object& object) {
    Demand(++depth_ < kDeepest, "the model has no circles");
    const ClassDescription& description = object.Description();
    text_.append(description.name).append(u"{\n");
    for (const Member& row : description.members) {
      object_ = &object;
      row_ = &row;
      text_.append(row.name).append(u"=");
      std::visit(*this, row.access);
      text_.append(u"\n");
    }
    text_.append(u"}");
    --depth_;
  }

  void operator()(const StringField& field) { text_.append(field.in(*object_)); }
  void operator()(const BooleanField& field) { text_.append(field.in(*object_) ? u"True" : u"False"); }
  void operator()(const CurrencyField& field) {
    text_.append(Digits(static_cast<std::uint64_t>(field.in(*object_).tenThousandths)));
  }
  /// A date may be no number, which is not equal to itself; its bits are.
  void operator()(const DateField& field) {
    text_.append(Digits(std::bit_cast<std::uint64_t>(field.in(*object_).days)));
  }
  void operator()(const LongField& field) {
    const std::int32_t number = field.in(*object_);
    if (row_->name == u"ClassDebugID") {
      Demand(number > 0, "every object has a debug id");
    } else {
      text_.append(Digits(static_cast<std::uint32_t>(number)));
    }
  }
  void operator()(const ObjectField& field) {
    Object* const child = field.in(*object_);
    if (child == nullptr) {
      const std::u16string_view className = object_->Description().name;
      Demand(row_->name == u"Fare" && (className == kMayBeAbsent[0] || className == kMayBeAbsent[1]),
             "objects and collections are there");
      return;
    }
    const ClassDescription* const type = field.type();
    Demand(type == nullptr || type == &child->Description(), "an object is of the class that its row names");
    Write(*child);
  }
  void operator()(const Method& /*method*/) {
    if (row_->name == u"Item") {
      WriteItems(static_cast<const Collection&>(*object_));
    }
  }

 private:
  void WriteItems(const Collection& collection) {
    const Ref<Cursor> cursor = collection.Enumerate();
    for (std::int32_t i = 1; i <= collection.Count(); ++i) {
      const Ref<Object> item = collection.Item(i);
      Demand(item && cursor->Next() == item, "a collection enumerates its items in their order");
      Write(*item);
    }
    Demand(!cursor->Next(), "an enumeration ends behind the last item");
  }

  std::u16string text_;
  Object* object_ = nullptr;
  const Member* row_ = nullptr;
  int depth_ = 0;
};

}  // namespace

std::u16string TextOfModel(Object& root) {
  ModelWriter writer;
  writer.Write(root);
  return writer.Take();
}

}  // namespace qorltst::fuzz
