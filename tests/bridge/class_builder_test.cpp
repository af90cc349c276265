// SPDX-License-Identifier: MIT
#include "bridge/class_builder.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

#include "bridge/runtime/fields.h"
#include "tests/bridge/victims.h"

namespace bridge {
namespace {

struct Base : Object {
  using Object::Object;
  static Class classObject() { return classNamed<"BuilderBase">(); }
};

void makeBase() {
  static const Class made = victims::ClassMaker("BuilderBase")
                                .method(
                                    "rank", +[](id, SEL) { return 1; })
                                .method("raising", &victims::raise)
                                .method(
                                    "refuse",
                                    +[](id self, SEL) -> id {
                                      send<void, "release">(self);
                                      return nullptr;
                                    })
                                .build();
  ASSERT_TRUE(made);
}

class Counter : public Bound<Counter, Base> {
 public:
  using Bound::Bound;

  static Class classObject();

  Base initWithStart(int start, const char* name) {
    if (!super<Base, "init">()) return Base();
    _count = start;
    _name = name;
    return self();
  }
  Base initRefused() { return super<Base, "refuse">(); }
  int rank() { return 10 + super<int, "rank">(); }
  int count() const { return _count; }
  bool isNamed(const char* name) const { return _name == name; }
  victims::Rect grown(victims::Rect frame, double by) const {
    return {frame.x, frame.y, frame.width + by, frame.height + by};
  }
  void raising() { super<void, "raising">(); }
  int failing() { throw std::runtime_error("own"); }
  void setKept(Object value) { _kept = Owned<Object>::retain(value); }

  static int made(int number) { return number + 1; }

 private:
  int _count = 0;
  std::string _name = "a text that is too long to be kept in place";
  Owned<Object> _kept;
};

Class Counter::classObject() {
  static const Class made = ClassBuilder<Counter>("BuiltCounter")
                                .method<"initWithStart:name:", &Counter::initWithStart>()
                                .method<"initRefused", &Counter::initRefused>()
                                .method<"rank", &Counter::rank>()
                                .method<"count", &Counter::count>()
                                .method<"isNamed:", &Counter::isNamed>()
                                .method<"grown:by:", &Counter::grown>()
                                .method<"raising", &Counter::raising>()
                                .method<"failing", &Counter::failing>()
                                .method<"setKept:", &Counter::setKept>()
                                .classMethod<"made:", &Counter::made>()
                                .conformsTo("NoSuchProtocolAnywhere")
                                .build();
  return made;
}

// A class of ours below another class of ours: each has its own state.
struct CounterHandle : Base {
  using Base::Base;
  static Class classObject() { return Counter::classObject(); }
};

class Labelled : public Bound<Labelled, CounterHandle> {
 public:
  using Bound::Bound;
  int rank() { return 100 + super<int, "rank">(); }
  int label() const { return *_label; }

  static Class classObject() {
    static const Class made = ClassBuilder<Labelled>("BuiltLabelled")
                                  .method<"rank", &Labelled::rank>()
                                  .method<"label", &Labelled::label>()
                                  .build();
    return made;
  }

 private:
  std::unique_ptr<int> _label = std::make_unique<int>(3);
};

// Others read its fields by name.
class Record : public Bound<Record, Base> {
 public:
  using Bound::Bound;
  ~Record() { setObjectField(self(), "_kept", Object()); }
  long number() const { return _number; }

  static Class classObject() {
    static const Class made = ClassBuilder<Record>("BuiltRecord")
                                  .method<"number", &Record::number>()
                                  .field("_kept", "@")
                                  .field("_borrowed", "@")
                                  .field("_action", ":")
                                  .build();
    return made;
  }

 private:
  long _number = 7;
};

class ClassBuilderTest : public testing::Test {
 protected:
  ClassBuilderTest() { makeBase(); }

  static Owned<Object> makeCounter(int start, const char* name) {
    const auto allocated = send<Object, "alloc">(Counter::classObject());
    return Owned<Object>::adopt(send<Object, "initWithStart:name:">(allocated, start, name));
  }
};

TEST_F(ClassBuilderTest, AnswersMessagesFromTheState) {
  const auto counter = makeCounter(4, "four");
  EXPECT_EQ((send<int, "count">(counter)), 4);
  EXPECT_TRUE((send<bool, "isNamed:">(counter, "four")));
  EXPECT_FALSE((send<bool, "isNamed:">(counter, "five")));
  EXPECT_EQ((send<victims::Rect, "grown:by:">(counter, victims::Rect{1, 2, 3, 4}, 1.0)),
            (victims::Rect{1, 2, 4, 5}));
  EXPECT_EQ((send<int, "made:">(Counter::classObject(), 4)), 5);
}

TEST_F(ClassBuilderTest, OverridesReachTheSuperclass) {
  EXPECT_EQ((send<int, "rank">(makeCounter(0, ""))), 11);
  EXPECT_EQ((send<int, "rank">(victims::make(Labelled::classObject()))), 111);
}

TEST_F(ClassBuilderTest, StateLivesAsLongAsTheObject) {
  victims::deaths = 0;
  {
    const auto counter = makeCounter(0, "");
    EXPECT_EQ(Counter::liveObjects(), 1);
    send<void, "setKept:">(counter, victims::make(victims::mortalClass()).get());
    EXPECT_EQ(victims::deaths, 0);
  }
  EXPECT_EQ(Counter::liveObjects(), 0);
  EXPECT_EQ(victims::deaths, 1);
}

TEST_F(ClassBuilderTest, ClassesBelowEachOtherKeepStatesApart) {
  {
    const auto labelled = victims::make(Labelled::classObject());
    EXPECT_EQ((send<int, "label">(labelled)), 3);
    EXPECT_EQ((send<int, "count">(labelled)), 0);
    EXPECT_EQ(Labelled::liveObjects(), 1);
    EXPECT_EQ(Counter::liveObjects(), 1);
  }
  EXPECT_EQ(liveBoundObjects(), 0);
}

TEST_F(ClassBuilderTest, ASuperclassMayRefuseToInitialise) {
  const auto allocated = send<Object, "alloc">(Counter::classObject());
  EXPECT_FALSE((send<Object, "initRefused">(allocated)));
  EXPECT_EQ(Counter::liveObjects(), 0);
}

TEST_F(ClassBuilderTest, KeepsItsOwnExceptionsAndPassesTheHosts) {
  const AutoreleasePool pool;
  const auto counter = makeCounter(0, "");
  EXPECT_EQ((send<int, "failing">(counter)), 0);
  EXPECT_ANY_THROW((send<void, "raising">(counter)));
}

TEST_F(ClassBuilderTest, FieldsStandBesideTheState) {
  const auto record = victims::make(Record::classObject());
  const auto other = victims::make(Record::classObject());
  EXPECT_FALSE(objectField(record, "_kept"));
  EXPECT_EQ(selectorField(record, "_action"), nullptr);
  setBorrowedField(record, "_borrowed", other);
  setSelectorField(record, "_action", selector<"copy:">());
  EXPECT_EQ(objectField(record, "_borrowed"), other.get());
  EXPECT_FALSE(objectField(other, "_borrowed"));
  EXPECT_TRUE(sameSelector(selectorField(record, "_action"), selector<"copy:">()));
  EXPECT_EQ((send<long, "number">(record)), 7);
  EXPECT_EQ((send<long, "number">(other)), 7);
}

TEST_F(ClassBuilderTest, AnObjectInAFieldLivesAsLongAsItIsThere) {
  victims::deaths = 0;
  {
    const auto record = victims::make(Record::classObject());
    setObjectField(record, "_kept", victims::make(victims::mortalClass()).get());
    EXPECT_EQ(victims::deaths, 0);
    setObjectField(record, "_kept", objectField(record, "_kept"));
    EXPECT_EQ(victims::deaths, 0);
    setObjectField(record, "_kept", victims::make(victims::mortalClass()).get());
    EXPECT_EQ(victims::deaths, 1);
  }
  EXPECT_EQ(victims::deaths, 2);
}

TEST_F(ClassBuilderTest, AnAbsentFieldKeepsNothing) {
  victims::deaths = 0;
  const auto record = victims::make(Record::classObject());
  {
    const auto mortal = victims::make(victims::mortalClass());
    setObjectField(record, "_missing", mortal);
    setObjectField(record, "_action", mortal);
    setObjectField(Object(), "_kept", mortal);
  }
  EXPECT_EQ(victims::deaths, 1);
  EXPECT_EQ(selectorField(record, "_action"), nullptr);
}

TEST_F(ClassBuilderTest, DerivesEncodings) {
  const auto encoding = [](const char* selector) {
    return std::string(method_getTypeEncoding(
        class_getInstanceMethod(Counter::classObject(), sel_registerName(selector))));
  };
  EXPECT_EQ(encoding("initWithStart:name:"), "@@:ir*");
  EXPECT_EQ(encoding("isNamed:"), "C@:r*");
  EXPECT_EQ(encoding("grown:by:"), "{Rect=dddd}@:{Rect=dddd}d");
}

TEST_F(ClassBuilderTest, AnswersNilWithoutASuperclassOrWithATakenName) {
  struct Nowhere : Object {
    using Object::Object;
    static Class classObject() { return classNamed<"NoSuchSuperclass">(); }
  };
  class Orphan : public Bound<Orphan, Nowhere> {
   public:
    using Bound::Bound;
  };
  class Twin : public Bound<Twin, Base> {
   public:
    using Bound::Bound;
  };
  ASSERT_TRUE(Counter::classObject());
  EXPECT_EQ(ClassBuilder<Orphan>("BuiltOrphan").build(), nullptr);
  EXPECT_EQ(ClassBuilder<Twin>("BuiltCounter").build(), nullptr);
}

TEST_F(ClassBuilderTest, LeavesNoObjectBehindInManyLives) {
  for (int round = 0; round < 100'000; ++round) {
    const AutoreleasePool pool;
    makeCounter(round, "a name that is too long to be kept in place").autorelease();
  }
  EXPECT_EQ(liveBoundObjects(), 0);
}

TEST_F(ClassBuilderTest, ObjectsLiveInFoundationsCollections) {
  {
    const AutoreleasePool pool;
    const auto array = victims::make(classNamed<"NSMutableArray">());
    send<void, "addObject:">(array, makeCounter(5, "").get());
    EXPECT_EQ((send<int, "count">(send<Object, "lastObject">(array))), 5);
    EXPECT_EQ(Counter::liveObjects(), 1);
  }
  EXPECT_EQ(Counter::liveObjects(), 0);
}

}  // namespace
}  // namespace bridge
