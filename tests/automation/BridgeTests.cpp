// The late-bound bridge: sessions, nodes and loggers of any make, reached by name.
#include <gtest/gtest.h>

#include <array>

#include "automation/LateBoundLogger.h"
#include "automation/LateBoundNode.h"
#include "automation/LateBoundSession.h"
#include "automation/Text.h"
#include "support/FakeObject.h"
#include "toolkit/RuntimeError.h"

namespace qorltst::automation::test {
namespace {

using toolkit::NodeTypeId;
using toolkit::RuntimeError;

ComRef<IDispatch> AsDispatch(const ComRef<FakeObject>& object) { return ComRef<IDispatch>(object.Get()); }

/// The runtime error that a call raises; number 0 where it raises none.
template <class Call>
RuntimeError ErrorOf(Call&& call) {
  try {
    call();
  } catch (const RuntimeError& error) {
    return error;
  }
  return {0, u"", u""};
}

class Bridge : public testing::TestWithParam<Manner> {
 protected:
  ~Bridge() override { EXPECT_EQ(FakeObject::Living(), living_) << "references are left over"; }

  static Ref<LateBoundNode> NodeOver(const ComRef<FakeObject>& object) {
    return Make<LateBoundNode>(AsDispatch(object), MakeNodeNames());
  }

 private:
  int living_ = FakeObject::Living();
};

TEST_P(Bridge, ACommandIsSentWithItsWaitFlag) {
  const ComRef<FakeObject> session = Fake(GetParam());
  std::u16string command;
  VARIANT wait{};
  session->On(u"SendCommand", [&](const FakeObject::Arguments& arguments, VARIANT&, EXCEPINFO*) {
    command = View(arguments.at(0).bstrVal);
    wait = arguments.at(1);
    return S_OK;
  });
  LateBoundSession late(AsDispatch(session));
  EXPECT_FALSE(late.SendCommand(u"TQT", true));
  EXPECT_EQ(command, u"TQT");
  EXPECT_EQ(wait.vt, VT_BOOL);
  EXPECT_EQ(wait.boolVal, VARIANT_TRUE);
}

TEST_P(Bridge, AnOptionIsSetWithTwoArguments) {
  const ComRef<FakeObject> session = Fake(GetParam());
  session->Gives(u"SetOption", Typed(VT_EMPTY));
  LateBoundSession late(AsDispatch(session));
  late.SetOption(322, false);
  ASSERT_EQ(session->LastArguments().size(), 2U);
  EXPECT_EQ(session->LastArguments()[0].vt, VT_I4);
  EXPECT_EQ(session->LastArguments()[0].lVal, 322);
  EXPECT_EQ(session->LastArguments()[1].vt, VT_BOOL);
  EXPECT_EQ(session->LastArguments()[1].boolVal, VARIANT_FALSE);
}

TEST_P(Bridge, AResponseGivesItsWholeTextNulsIncluded) {
  const ComRef<FakeObject> response = Fake(GetParam());
  response->Gives(u"Text", String(std::u16string_view(u"A\0B", 3)));
  const ComRef<FakeObject> session = Fake(GetParam());
  session->Gives(u"SendCommand", Dispatch(response));
  const Ref<toolkit::HostResponse> answer = LateBoundSession(AsDispatch(session)).SendCommand(u"MD", true);
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->Text(), std::u16string_view(u"A\0B", 3));
}

TEST_P(Bridge, NothingEmptyAndNullAreNoResponse) {
  for (const VARIANT& none : {Dispatch(static_cast<IDispatch*>(nullptr)), Typed(VT_EMPTY), Typed(VT_NULL)}) {
    const ComRef<FakeObject> session = Fake(GetParam());
    session->Gives(u"SendCommand", none);
    EXPECT_FALSE(LateBoundSession(AsDispatch(session)).SendCommand(u"TQT", true));
  }
}

TEST_P(Bridge, AResponseThatIsNoObjectIsATypeMismatch) {
  const ComRef<FakeObject> session = Fake(GetParam());
  session->Gives(u"SendCommand", String(u"screen"));
  LateBoundSession late(AsDispatch(session));
  EXPECT_EQ(ErrorOf([&] { late.SendCommand(u"TQT", true); }).Number(), toolkit::kTypeMismatch);
}

TEST_P(Bridge, ANodesPropertiesAreConverted) {
  const ComRef<FakeObject> node = Fake(GetParam());
  VARIANT date = Typed(VT_DATE);
  date.date = 46000.5;
  node->Gives(u"TypeId", Short(602)).Gives(u"Text", Number(12)).Gives(u"ErrorText", String(u"e"));
  node->Gives(u"HasWarning", Number(5)).Gives(u"HasChildren", Double(1)).Gives(u"DateValue", date);
  node->Gives(u"Buffer", String(u"buffer"));
  const Ref<LateBoundNode> late = NodeOver(node);
  EXPECT_EQ(late->TypeId(), NodeTypeId::TstRoot);
  EXPECT_EQ(late->Text(), u"12");
  EXPECT_EQ(late->ErrorText(), u"e");
  EXPECT_TRUE(late->HasWarning());
  EXPECT_TRUE(late->HasChildren());
  EXPECT_EQ(late->DateValue().days, 46000.5);
  EXPECT_EQ(late->Buffer(), u"buffer");
}

TEST_P(Bridge, ResultsByReferenceAreFollowed) {
  static VARIANT inner = Short(602);
  const ComRef<FakeObject> node = Fake(GetParam());
  node->On(u"TypeId", [](const FakeObject::Arguments&, VARIANT& result, EXCEPINFO*) {
    result = Reference(inner);
    return S_OK;
  });
  EXPECT_EQ(NodeOver(node)->TypeId(), NodeTypeId::TstRoot);
}

TEST_P(Bridge, ParseGetsTextAndMode) {
  const ComRef<FakeObject> node = Fake(GetParam());
  std::u16string text;
  node->On(u"Parse", [&](const FakeObject::Arguments& arguments, VARIANT& result, EXCEPINFO*) {
    text = View(arguments.at(0).bstrVal);
    result = Double(10000);
    return arguments.at(1).vt == VT_I4 && arguments.at(1).lVal == 6 ? S_OK : E_FAIL;
  });
  EXPECT_EQ(NodeOver(node)->Parse(u"display", 6), 10000);
  EXPECT_EQ(text, u"display");
}

TEST_P(Bridge, ASearchLeavesTheStartNodeOut) {
  const ComRef<FakeObject> found = Fake(GetParam());
  found->Gives(u"Text", String(u"found"));
  const ComRef<FakeObject> node = Fake(GetParam());
  node->Gives(u"FindNode", Dispatch(found));
  const Ref<toolkit::ParseNode> answer = NodeOver(node)->FindNode(NodeTypeId::MoreScreens);
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->Text(), u"found");
  ASSERT_EQ(node->LastArguments().size(), 1U);
  EXPECT_EQ(node->LastArguments()[0].lVal, 561);
}

TEST_P(Bridge, ASearchMayFindNothing) {
  const ComRef<FakeObject> node = Fake(GetParam());
  node->Gives(u"FindNode", Dispatch(static_cast<IDispatch*>(nullptr)));
  EXPECT_FALSE(NodeOver(node)->FindNode(NodeTypeId::MoreScreens));
}

TEST_P(Bridge, ItemsAreAskedAsMethodOrProperty) {
  const ComRef<FakeObject> item = Fake(GetParam());
  item->Gives(u"Buffer", String(u"b"));
  const ComRef<FakeObject> node = Fake(GetParam());
  node->Gives(u"Item", Dispatch(item));
  const Ref<toolkit::BufferOwner> answer = NodeOver(node)->Item(2);
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->Buffer(), u"b");
  EXPECT_EQ(node->CountOf("call:Item/3"), 1U);
  EXPECT_EQ(node->LastArguments()[0].lVal, 2);
}

TEST_P(Bridge, AnItemThatIsNotThereIsNothing) {
  const ComRef<FakeObject> node = Fake(GetParam());
  node->Gives(u"Item", Typed(VT_EMPTY));
  EXPECT_FALSE(NodeOver(node)->Item(1));
}

TEST_P(Bridge, ChildrenArePulledOneAtATime) {
  const ComRef<FakeObject> first = Fake(GetParam());
  const ComRef<FakeObject> second = Fake(GetParam());
  first->Gives(u"TypeId", Number(1));
  second->Gives(u"TypeId", Number(2));
  const ComRef<FakeObject> node = Fake(GetParam());
  {
    const ComRef<IEnumVARIANT> children = FakeEnumerator({Dispatch(first), Unknown(second.Get())}, E_FAIL);
    node->Gives(u"_NewEnum", Unknown(children.Get()), DISPID_NEWENUM);
  }
  const Ref<toolkit::NodeEnumerator> children = NodeOver(node)->Children();
  EXPECT_EQ(children->Next()->TypeId(), NodeTypeId{1});
  EXPECT_EQ(children->Next()->TypeId(), NodeTypeId{2});
  EXPECT_EQ(ErrorOf([&] { children->Next(); }).Number(), E_FAIL);
  EXPECT_EQ(node->CountOf("names"), 0U);
}

TEST_P(Bridge, AnEnumerationEnds) {
  const ComRef<FakeObject> node = Fake(GetParam());
  node->Gives(u"_NewEnum", Unknown(FakeEnumerator({}).Get()), DISPID_NEWENUM);
  EXPECT_FALSE(NodeOver(node)->Children()->Next());
}

TEST_P(Bridge, AMissingChildOrEnumeratorRaises91) {
  const ComRef<FakeObject> node = Fake(GetParam());
  node->Gives(u"_NewEnum", Unknown(FakeEnumerator({Dispatch(static_cast<IDispatch*>(nullptr))}).Get()), DISPID_NEWENUM);
  const Ref<toolkit::NodeEnumerator> children = NodeOver(node)->Children();
  EXPECT_EQ(ErrorOf([&] { children->Next(); }).Number(), toolkit::kObjectNotSet);
  const ComRef<FakeObject> bare = Fake(GetParam());
  bare->Gives(u"_NewEnum", Dispatch(static_cast<IDispatch*>(nullptr)), DISPID_NEWENUM);
  EXPECT_EQ(ErrorOf([&] { NodeOver(bare)->Children(); }).Number(), toolkit::kObjectNotSet);
}

TEST_P(Bridge, AnObjectsOwnErrorClimbsWithItsTexts) {
  const ComRef<FakeObject> node = Fake(GetParam());
  node->On(u"Text", [](const FakeObject::Arguments&, VARIANT&, EXCEPINFO* info) {
    info->scode = static_cast<HRESULT>(0x800A0035);
    info->bstrSource = SysAllocString(L"Toolkit");
    info->bstrDescription = SysAllocString(L"Broken");
    return DISP_E_EXCEPTION;
  });
  const RuntimeError error = ErrorOf([&] { NodeOver(node)->Text(); });
  EXPECT_EQ(error.Number(), 53);
  EXPECT_EQ(error.Source(), u"Toolkit");
  EXPECT_EQ(error.Description(), u"Broken");
}

HRESULT STDAPICALLTYPE FillLater(EXCEPINFO* info) {
  info->wCode = 1234;
  info->bstrDescription = SysAllocString(L"filled in later");
  return S_OK;
}

TEST_P(Bridge, AnErrorThatIsFilledInLaterIsAskedFor) {
  const ComRef<FakeObject> node = Fake(GetParam());
  node->On(u"Text", [](const FakeObject::Arguments&, VARIANT&, EXCEPINFO* info) {
    info->pfnDeferredFillIn = &FillLater;
    return DISP_E_EXCEPTION;
  });
  const RuntimeError error = ErrorOf([&] { NodeOver(node)->Text(); });
  EXPECT_EQ(error.Number(), 1234);
  EXPECT_EQ(error.Description(), u"filled in later");
}

TEST_P(Bridge, AMemberThatIsNotThereRaises438) {
  const ComRef<FakeObject> node = Fake(GetParam());
  EXPECT_EQ(ErrorOf([&] { NodeOver(node)->Text(); }).Number(), toolkit::kNoSuchMember);
  EXPECT_EQ(ErrorOf([&] { NodeOver(node)->Children(); }).Number(), toolkit::kNoSuchMember);
}

TEST_P(Bridge, ATextThatIsNoNumberIsATypeMismatch) {
  const ComRef<FakeObject> node = Fake(GetParam());
  node->Gives(u"TypeId", String(u"abc"));
  EXPECT_EQ(ErrorOf([&] { NodeOver(node)->TypeId(); }).Number(), toolkit::kTypeMismatch);
}

TEST_P(Bridge, ANameIsAskedForOnce) {
  const ComRef<FakeObject> node = Fake(GetParam());
  node->Gives(u"TypeId", Number(1));
  const Ref<LateBoundNode> late = NodeOver(node);
  static_cast<void>(late->TypeId());
  static_cast<void>(late->TypeId());
  EXPECT_EQ(node->CountOf("names:TypeId"), 1U);
  EXPECT_EQ(node->CountOf("call:TypeId/2"), 2U);
}

TEST_P(Bridge, ASessionIsAskedForNothingButItsMembers) {
  const ComRef<FakeObject> session = Fake(GetParam());
  session->Gives(u"SetOption", Typed(VT_EMPTY));
  LateBoundSession(AsDispatch(session)).SetOption(1, true);
  EXPECT_EQ(session->Calls(), (std::vector<std::string>{"names:SetOption", "call:SetOption/1"}));
}

TEST_P(Bridge, ALoggerGetsEntriesInTheOrderOfTheirParts) {
  const ComRef<FakeObject> logger = Fake(GetParam());
  std::u16string texts;
  logger->On(u"Write", [&](const FakeObject::Arguments& arguments, VARIANT&, EXCEPINFO*) {
    texts = std::u16string(View(arguments.at(1).bstrVal)).append(u"|").append(View(arguments.at(3).bstrVal));
    return arguments.at(0).lVal == 3 && arguments.at(2).lVal == 1 ? S_OK : E_FAIL;
  });
  LateBoundLogger(AsDispatch(logger), MakeLoggerNames()).Write(3, u"source", 1, u"message");
  EXPECT_EQ(texts, u"source|message");
}

/// Says that it gave a child, and gave none.
class EmptyHanded final : public IEnumVARIANT {
 public:
  virtual ~EmptyHanded() = default;
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) noexcept override { return E_NOINTERFACE; }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 2; }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }
  HRESULT STDMETHODCALLTYPE Next(ULONG, VARIANT*, ULONG* taken) noexcept override {
    *taken = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reset() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT**) noexcept override { return E_NOTIMPL; }
};

TEST_P(Bridge, AnEnumeratorThatGivesNothingIsAtItsEnd) {
  EmptyHanded children;
  LateBoundEnumerator enumerator(ComRef<IEnumVARIANT>(&children), MakeNodeNames());
  EXPECT_FALSE(enumerator.Next());
}

INSTANTIATE_TEST_SUITE_P(Manners, Bridge, testing::Values(Manner::Plain, Manner::Extended),
                         [](const auto& manner) { return manner.param == Manner::Plain ? "Plain" : "Extended"; });

/// Two kinds of nodes whose members have different ids, and type information for one of them.
class SharedIds : public testing::Test {
 protected:
  /// A type information that declares one member, TypeId.
  static ComRef<ITypeInfo> Declare(METHODDATA& member, DISPID id) {
    static wchar_t typeId[] = L"TypeId";
    member = METHODDATA{typeId, nullptr, id, 0, CC_STDCALL, 0, DISPATCH_PROPERTYGET, VT_I4};
    INTERFACEDATA data{&member, 1};
    ComRef<ITypeInfo> declared;
    EXPECT_EQ(CreateDispTypeInfo(&data, LOCALE_USER_DEFAULT, declared.Receive()), S_OK);
    return declared;
  }

  ComRef<FakeObject> TypedNode(std::int32_t type) const {
    ComRef<FakeObject> node = Fake(Manner::Typed);
    node->SetTypeInfo(typeInfo_.Get());
    node->Gives(u"TypeId", Number(type), 100).Gives(u"Text", String(u"text"), 200 + type);
    return node;
  }

  static Ref<LateBoundNode> Late(const ComRef<FakeObject>& node, const Ref<DispatchNames>& names) {
    return Make<LateBoundNode>(AsDispatch(node), names);
  }

  METHODDATA member_{};
  ComRef<ITypeInfo> typeInfo_ = Declare(member_, 100);
  Ref<DispatchNames> names_ = MakeNodeNames();
};

TEST_F(SharedIds, NodesOfOneTypeInformationAreNotAskedForItsNames) {
  const ComRef<FakeObject> first = TypedNode(1);
  const ComRef<FakeObject> second = TypedNode(2);
  EXPECT_EQ(Late(first, names_)->TypeId(), NodeTypeId{1});
  EXPECT_EQ(Late(second, names_)->TypeId(), NodeTypeId{2});
  EXPECT_EQ(first->CountOf("names"), 0U);
  EXPECT_EQ(second->Calls(), (std::vector<std::string>{"typeinfo", "call:TypeId/2"}));
}

TEST_F(SharedIds, NamesThatTheTypeInformationDoesNotDeclareAreAskedOfEachNode) {
  // Their ids differ from node to node.
  EXPECT_EQ(Late(TypedNode(1), names_)->Text(), u"text");
  EXPECT_EQ(Late(TypedNode(2), names_)->Text(), u"text");
}

TEST_F(SharedIds, AnotherTypeInformationsIdsAreItsOwn) {
  EXPECT_EQ(Late(TypedNode(1), names_)->TypeId(), NodeTypeId{1});
  METHODDATA member{};
  const ComRef<FakeObject> other = Fake(Manner::Typed);
  other->SetTypeInfo(Declare(member, 300).Get());
  other->Gives(u"Text", String(u"wrong"), 100).Gives(u"TypeId", Number(3), 300);
  EXPECT_EQ(Late(other, names_)->TypeId(), NodeTypeId{3});
}

TEST_F(SharedIds, ANodeOfAnotherMakeIsAskedItself) {
  EXPECT_EQ(Late(TypedNode(1), names_)->TypeId(), NodeTypeId{1});
  const ComRef<FakeObject> other = Fake(Manner::Extended);
  other->Gives(u"Text", String(u"wrong"), 100).Gives(u"TypeId", Number(3), 101);
  EXPECT_EQ(Late(other, names_)->TypeId(), NodeTypeId{3});
}

}  // namespace
}  // namespace qorltst::automation::test
