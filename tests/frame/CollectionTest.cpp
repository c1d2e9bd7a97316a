#include <gtest/gtest.h>

#include "elements/TSTHeader.h"
#include "frame/Collection.h"
#include "tests/support/Printers.h"
#include "toolkit/RuntimeError.h"

namespace qorltst {
namespace {

class CollectionTest : public ::testing::Test {
 protected:
  Ref<Object> Add() {
    Ref<Object> item = Make<TSTHeader>(*toolkit_);
    collection_->Add(item);
    return item;
  }

  Ref<testing::TestToolkit> toolkit_ = Make<testing::TestToolkit>();
  Ref<Collection> collection_ = Make<Collection>();
};

TEST_F(CollectionTest, IsOrderedAndCountedFromOne) {
  const Ref<Object> first = Add();
  const Ref<Object> second = Add();
  EXPECT_EQ(collection_->Count(), 2);
  EXPECT_EQ(collection_->Item(1), first);
  EXPECT_EQ(collection_->Item(2), second);
}

TEST_F(CollectionTest, AnIndexOutsideIsSubscriptOutOfRange) {
  Add();
  for (const std::int32_t index : {0, -1, 2, 2147483647, -2147483647 - 1}) {
    SCOPED_TRACE(index);
    try {
      (void)collection_->Item(index);
      FAIL() << "an object came back";
    } catch (const toolkit::RuntimeError& error) {
      EXPECT_EQ(error.Number(), toolkit::kSubscriptOutOfRange);
      EXPECT_EQ(error.Description(), u"Subscript out of range");
    }
  }
}

TEST_F(CollectionTest, EnumeratesInOrderAndThenNothing) {
  const Ref<Object> first = Add();
  const Ref<Object> second = Add();
  const Ref<Cursor> cursor = collection_->Enumerate();
  EXPECT_EQ(cursor->Next(), first);
  EXPECT_EQ(cursor->Next(), second);
  EXPECT_FALSE(cursor->Next());
  EXPECT_FALSE(cursor->Next());
  cursor->Reset();
  EXPECT_EQ(cursor->Next(), first);
}

TEST_F(CollectionTest, ACloneStandsWhereItsOriginalStoodAndGoesItsOwnWay) {
  const Ref<Object> first = Add();
  const Ref<Object> second = Add();
  const Ref<Cursor> cursor = collection_->Enumerate();
  (void)cursor->Next();
  const Ref<Cursor> clone = cursor->Clone();
  EXPECT_EQ(clone->Next(), second);
  EXPECT_EQ(cursor->Next(), second);
}

TEST_F(CollectionTest, OutlivesItsOwnerThroughItsCursor) {
  const Ref<Object> item = Add();
  const Ref<Cursor> cursor = collection_->Enumerate();
  collection_ = nullptr;
  EXPECT_EQ(cursor->Next(), item);
}

TEST_F(CollectionTest, EmptyHasNothingToEnumerate) {
  EXPECT_EQ(collection_->Count(), 0);
  EXPECT_FALSE(collection_->Enumerate()->Next());
}

}  // namespace
}  // namespace qorltst
