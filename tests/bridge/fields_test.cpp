// SPDX-License-Identifier: MIT
#include "bridge/runtime/fields.h"

#include <gtest/gtest.h>

#include "tests/bridge/victims.h"

namespace bridge {
namespace {

Class recordClass() {
  static const Class made = victims::ClassMaker("TargetRecord")
                                .field("_target", "@\"NSObject\"")
                                .field("_action", ":")
                                .field("_count", "q")
                                .build();
  return made;
}

TEST(Fields, ReadsObjectsAndSelectorsByName) {
  const auto record = victims::make(recordClass());
  victims::setField(record, "_target", record.get().get());
  victims::setField(record, "_action", selector<"copy:">());
  EXPECT_EQ(objectField(record, "_target"), record.get());
  EXPECT_TRUE(sameSelector(selectorField(record, "_action"), selector<"copy:">()));
}

TEST(Fields, ReadsFieldsOfSuperclasses) {
  ASSERT_TRUE(recordClass());
  const Class below = victims::ClassMaker("TargetRecordBelow", "TargetRecord").build();
  const auto record = victims::make(below);
  victims::setField(record, "_target", record.get().get());
  EXPECT_EQ(objectField(record, "_target"), record.get());
}

TEST(Fields, CountsAMissingFieldAsAbsent) {
  const auto record = victims::make(recordClass());
  EXPECT_FALSE(objectField(record, "_banner"));
  EXPECT_EQ(selectorField(record, "_banner"), nullptr);
  EXPECT_FALSE(objectField(Object(), "_target"));
}

TEST(Fields, CountsAFieldOfAnotherKindAsAbsent) {
  const auto record = victims::make(recordClass());
  victims::setField(record, "_count", reinterpret_cast<const void*>(42));
  EXPECT_FALSE(objectField(record, "_count"));
  EXPECT_EQ(selectorField(record, "_count"), nullptr);
  EXPECT_EQ(selectorField(record, "_target"), nullptr);
}

}  // namespace
}  // namespace bridge
