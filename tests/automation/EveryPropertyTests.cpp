// Every property of every class, filled: read late bound and through the virtual table, refused to be set, and without
// memory for its text.
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "automation/Text.h"
#include "support/Client.h"
#include "support/NoToolkit.h"

namespace qorltst::automation::test {
namespace {

constexpr HRESULT kUnexpected = static_cast<HRESULT>(0x8004270F);
constexpr std::size_t kDispatchEntries = 7;
constexpr double kDay = 46376.25;
constexpr std::int64_t kAmount = 1'205'000;

std::string Ascii(std::u16string_view text) { return {text.begin(), text.end()}; }

/// What the object's text property is filled with: its own name, a NUL, and something beyond the Latin letters.
std::u16string TextFor(const Member& row) { return std::u16string(row.name).append(u"\0\u20AC", 2); }

/// Gives every property that holds a value of its own such a value.
struct Filler {
  Object& object;
  const Member& row;

  void operator()(const StringField& field) const { field.in(object) = TextFor(row); }
  void operator()(const BooleanField& field) const { field.in(object) = true; }
  void operator()(const DateField& field) const { field.in(object) = Date{kDay}; }
  void operator()(const CurrencyField& field) const { field.in(object) = Currency{kAmount}; }
  void operator()(const LongField& /*debug id*/) const {}
  void operator()(const ObjectField& /*made with its owner*/) const {}
  void operator()(const Method& /*method*/) const {}
};

/// Calls `visit(object, client)` for a filled object of each class that callers can create.
template <class Visit>
void ForEachFilled(Visit&& visit) {
  ForEachNewObject([&](Object& object) {
    for (const Member& row : object.Description().members) {
      std::visit(Filler{object, row}, row.access);
    }
    visit(object, Client(object));
  });
}

/// The place of a row's getter behind the entries of IDispatch: a row with a setter takes two.
std::size_t SlotOf(const ClassDescription& description, const Member& row) {
  std::size_t slot = 0;
  for (const Member* before = description.members.data(); before != &row; ++before) {
    slot += before->put.call != nullptr ? 2 : 1;
  }
  return slot;
}

/// Reads a property as an early bound caller does.
HRESULT ReadEarly(const Client& client, std::size_t slot, void* out) {
  using Getter = HRESULT(STDMETHODCALLTYPE*)(IDispatch*, void*);
  // An interface points at a pointer to its entries.
  auto* const* const entries = *reinterpret_cast<Getter* const*>(client.Get());
  return entries[kDispatchEntries + slot](client.Get(), out);
}

/// Compares a property, read both ways, with what it was filled with.
struct Reader {
  Object& object;
  const Client& client;
  const Member& row;
  std::size_t slot;

  void operator()(const StringField& /*field*/) const {
    EXPECT_EQ(client.Call(row.name).Text(), TextFor(row));
    BSTR text = nullptr;
    EXPECT_EQ(ReadEarly(client, slot, &text), S_OK);
    EXPECT_EQ(View(text), TextFor(row));
    SysFreeString(text);
  }
  void operator()(const LongField& field) const {
    EXPECT_EQ(client.Call(row.name).Long(), field.in(object));
    LONG number = 0;
    EXPECT_EQ(ReadEarly(client, slot, &number), S_OK);
    EXPECT_EQ(number, field.in(object));
  }
  void operator()(const BooleanField& /*field*/) const {
    const Answer late = client.Call(row.name);
    EXPECT_EQ(late.value.Get().vt, VT_BOOL);
    EXPECT_EQ(late.value.Get().boolVal, VARIANT_TRUE);
    VARIANT_BOOL flag = VARIANT_FALSE;
    EXPECT_EQ(ReadEarly(client, slot, &flag), S_OK);
    EXPECT_EQ(flag, VARIANT_TRUE);
  }
  void operator()(const DateField& /*field*/) const {
    const Answer late = client.Call(row.name);
    EXPECT_EQ(late.value.Get().vt, VT_DATE);
    EXPECT_EQ(late.value.Get().date, kDay);
    DATE day = 0;
    EXPECT_EQ(ReadEarly(client, slot, &day), S_OK);
    EXPECT_EQ(day, kDay);
  }
  void operator()(const CurrencyField& /*field*/) const {
    const Answer late = client.Call(row.name);
    EXPECT_EQ(late.value.Get().vt, VT_CY);
    EXPECT_EQ(late.value.Get().cyVal.int64, kAmount);
    CY amount{};
    EXPECT_EQ(ReadEarly(client, slot, &amount), S_OK);
    EXPECT_EQ(amount.int64, kAmount);
  }
  void operator()(const ObjectField& field) const {
    const Answer late = client.Call(row.name);
    EXPECT_EQ(late.value.Get().vt, VT_DISPATCH);
    ComRef<IDispatch> early;
    EXPECT_EQ(ReadEarly(client, slot, early.ReceiveAny()), S_OK);
    EXPECT_EQ(early.Get(), late.value.Get().pdispVal) << "one identity, whoever asks";
    EXPECT_EQ(early.Get() != nullptr, field.in(object) != nullptr);
  }
  void operator()(const Method& /*method*/) const {}
};

/// Fails as often as it was told, then has memory again.
int failures = 0;
BSTR WINAPI MemoryLater(const OLECHAR* text, UINT length) {
  return failures-- > 0 ? nullptr : SysAllocStringLen(text, length);
}

std::u16string SourceOfErrorInformation() {
  ComRef<IErrorInfo> info;
  BSTR source = nullptr;
  if (GetErrorInfo(0, info.Receive()) != S_OK || FAILED(info->GetSource(&source))) {
    return u"none";
  }
  std::u16string text(View(source));
  SysFreeString(source);
  return text;
}

TEST(EveryProperty, IsReadLateBoundAndEarlyBoundAlike) {
  ForEachFilled([](Object& object, const Client& client) {
    for (const Member& row : object.Description().members) {
      SCOPED_TRACE(Ascii(row.name));
      std::visit(Reader{object, client, row, SlotOf(object.Description(), row)}, row.access);
    }
  });
}

TEST(EveryProperty, KeepsItsValueWhereItIsRefusedToBeSet) {
  ForEachFilled([](Object& object, const Client& client) {
    for (const Member& row : object.Description().members) {
      if (row.put.call == nullptr) {
        EXPECT_EQ(client.Put(row.name, String(u"changed")).code, DISP_E_MEMBERNOTFOUND);
        EXPECT_EQ(client.Put(row.name, Number(4711)).code, DISP_E_MEMBERNOTFOUND);
        EXPECT_EQ(client.Put(row.name, Dispatch(client.Get()), DISPATCH_PROPERTYPUTREF).code, DISP_E_MEMBERNOTFOUND);
      }
    }
    for (const Member& row : object.Description().members) {
      SCOPED_TRACE(Ascii(row.name));
      std::visit(Reader{object, client, row, SlotOf(object.Description(), row)}, row.access);
    }
  });
}

TEST(EveryProperty, WithoutMemoryForItsTextRaises9999UnderItsGuardOrTellsThat) {
  ForEachFilled([](Object& object, const Client& client) {
    for (const Member& row : object.Description().members) {
      if (!std::holds_alternative<StringField>(row.access)) {
        continue;
      }
      SCOPED_TRACE(Ascii(row.name));
      const DISPID id = object.Description().DispatchIdOf(row);
      failures = 1;
      const BstrAllocator before = ExchangeBstrAllocator(&MemoryLater);
      const Answer late = client.Call(id);
      failures = 1;
      SetErrorInfo(0, nullptr);
      BSTR text = nullptr;
      const HRESULT early = ReadEarly(client, SlotOf(object.Description(), row), &text);
      ExchangeBstrAllocator(before);
      EXPECT_EQ(text, nullptr);
      if (row.getGuard.empty()) {
        EXPECT_EQ(late.code, DISP_E_EXCEPTION);
        EXPECT_EQ(late.errorCode, E_OUTOFMEMORY);
        EXPECT_EQ(late.description, u"Out of memory");
        EXPECT_EQ(early, E_OUTOFMEMORY);
      } else {
        EXPECT_EQ(late.code, DISP_E_EXCEPTION);
        EXPECT_EQ(late.errorCode, kUnexpected);
        EXPECT_EQ(late.source, row.getGuard);
        EXPECT_EQ(late.description, u"An unknown error has occurred!");
        EXPECT_EQ(early, kUnexpected);
        EXPECT_EQ(SourceOfErrorInformation(), row.getGuard);
      }
    }
  });
}

}  // namespace
}  // namespace qorltst::automation::test
