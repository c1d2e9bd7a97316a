// Thunks and their tables. See DualTable.h; the IUnknown and IDispatch entries are in DualEntries.cpp.
#include "automation/DualTable.h"

#include <algorithm>
#include <array>
#include <memory>
#include <stdexcept>
#include <variant>

#include "automation/DualEntries.h"

namespace qorltst::automation {
namespace {

template <std::size_t>
using WordAt = Word;

template <std::size_t Row>
HRESULT STDMETHODCALLTYPE Get(Dual* self, void* out) noexcept {
  return GetProperty(*self, Row, out);
}

template <std::size_t Row>
HRESULT STDMETHODCALLTYPE Put(Dual* self, Word value) noexcept {
  return PutProperty(*self, Row, value);
}

template <std::size_t Row, class Words>
struct Call;

template <std::size_t Row, std::size_t... Index>
struct Call<Row, std::index_sequence<Index...>> {
  static HRESULT STDMETHODCALLTYPE Thunk(Dual* self, WordAt<Index>... words) noexcept {
    const std::array<Word, sizeof...(Index)> all{words...};
    return CallMethod(*self, Row, all);
  }
};

template <std::size_t Row, std::size_t Count>
constexpr auto kCall = &Call<Row, std::make_index_sequence<Count>>::Thunk;

using Slots = std::array<Slot, kMaximumRows>;

/// One entry for each row, made by `make` from the row's number.
template <class Maker>
constexpr Slots SlotsBy(Maker make) {
  return [make]<std::size_t... Row>(std::index_sequence<Row...>) {
    return Slots{make(std::integral_constant<std::size_t, Row>())...};
  }
  (std::make_index_sequence<kMaximumRows>());
}

constexpr Slots kGetters = SlotsBy([](auto row) { return Slot{.get = &Get<row>}; });

constexpr Slots kSetters = SlotsBy([](auto row) { return Slot{.words1 = &Put<row>}; });

constexpr std::array<Slots, kMaximumWords + 1> kCalls{
    SlotsBy([](auto row) { return Slot{.words0 = kCall<row, 0>}; }),
    SlotsBy([](auto row) { return Slot{.words1 = kCall<row, 1>}; }),
    SlotsBy([](auto row) { return Slot{.words2 = kCall<row, 2>}; }),
    SlotsBy([](auto row) { return Slot{.words3 = kCall<row, 3>}; }),
    SlotsBy([](auto row) { return Slot{.words4 = kCall<row, 4>}; }),
    SlotsBy([](auto row) { return Slot{.words5 = kCall<row, 5>}; }),
    SlotsBy([](auto row) { return Slot{.words6 = kCall<row, 6>}; }),
};

constexpr DualTable kEntries{&QueryInterface, &AddRef,        &Release, &GetTypeInfoCount,
                             &GetTypeInfo,    &GetIdsOfNames, &Invoke};

struct SharedTable {
  DualTable entries;
  Slots slots;
};

/// Read-only data: nothing writes to the table of a record.
constexpr SharedTable kRecordTable{kEntries, kGetters};

/// A row may take two entries.
struct OwnTable {
  DualTable entries;
  std::array<Slot, 2 * kMaximumRows> slots;
};

bool IsPlainProperty(const Member& member) {
  return !std::holds_alternative<Method>(member.access) && member.put.call == nullptr;
}

Slot ReadingSlot(const Member& member, std::size_t row) {
  const auto* const method = std::get_if<Method>(&member.access);
  if (method == nullptr) {
    return kGetters[row];
  }
  return kCalls.at(method->parameters.size() + (method->result == ValueType::Nothing ? 0 : 1))[row];
}

}  // namespace

const DualTable& TableFor(const ClassDescription& description) {
  if (description.members.size() > kMaximumRows) {
    throw std::length_error("a class has more members than a virtual table takes");
  }
  if (std::ranges::all_of(description.members, &IsPlainProperty)) {
    return kRecordTable.entries;
  }
  // Never freed, as the class's binding is not.
  OwnTable* const table = std::make_unique<OwnTable>(OwnTable{kEntries, {}}).release();
  Slot* next = table->slots.data();
  for (std::size_t row = 0; row < description.members.size(); ++row) {
    const Member& member = description.members[row];
    *next++ = ReadingSlot(member, row);
    if (member.put.call != nullptr) {
      *next++ = kSetters[row];
    }
  }
  return table->entries;
}

}  // namespace qorltst::automation
