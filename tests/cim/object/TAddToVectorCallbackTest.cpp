// The collector, and what it and other callbacks may rely on in an enumeration.

#include <vector>

#include <gtest/gtest.h>
#include <boost/function.hpp>
#include <boost/make_shared.hpp>

#include <qdacore/cim/object/TAddToVectorCallback.h>
#include <qdamemory/MemoryNamespace.h>
#include <tests/cim/RecordingNamespace.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;
using cim_test::OpaqueInstance;

typedef boost::function<bool(boost::shared_ptr<ICIMInstance>)> Visitor;

TEST(TAddToVectorCallback, AppendsAndGoesOn) {
  std::vector<boost::shared_ptr<ICIMInstance> > found;
  TAddToVectorCallback<ICIMInstance> collect(&found);
  const boost::shared_ptr<ICIMInstance> first = boost::make_shared<OpaqueInstance>();
  const boost::shared_ptr<ICIMInstance> second = boost::make_shared<OpaqueInstance>();
  EXPECT_TRUE(collect(first));
  EXPECT_TRUE(collect(second));
  EXPECT_TRUE(collect(first));
  ASSERT_EQ(3u, found.size());
  EXPECT_EQ(first, found[0]);
  EXPECT_EQ(second, found[1]);
  EXPECT_EQ(first, found[2]);
}

TEST(TAddToVectorCallback, KeepsWhatWasThere) {
  std::vector<boost::shared_ptr<ICIMInstance> > found(1);
  TAddToVectorCallback<ICIMInstance> collect(&found);
  collect(boost::make_shared<OpaqueInstance>());
  ASSERT_EQ(2u, found.size());
  EXPECT_FALSE(found[0]);
}

TEST(TAddToVectorCallback, AppendsAnEmptyPointerToo) {
  std::vector<boost::shared_ptr<ICIMInstance> > found;
  EXPECT_TRUE(TAddToVectorCallback<ICIMInstance>(&found)(boost::shared_ptr<ICIMInstance>()));
  EXPECT_EQ(1u, found.size());
}

TEST(TAddToVectorCallback, SharesItsElements) {
  std::vector<boost::shared_ptr<ICIMInstance> > found;
  boost::shared_ptr<ICIMInstance> element = boost::make_shared<OpaqueInstance>();
  TAddToVectorCallback<ICIMInstance> collect(&found);
  collect(element);
  EXPECT_EQ(2, element.use_count());
}

TEST(TAddToVectorCallback, CopiesFillTheSameVector) {
  std::vector<boost::shared_ptr<ICIMInstance> > found;
  Visitor visit = TAddToVectorCallback<ICIMInstance>(&found);
  Visitor copy = visit;
  EXPECT_TRUE(visit(boost::make_shared<OpaqueInstance>()));
  EXPECT_TRUE(copy(boost::make_shared<OpaqueInstance>()));
  EXPECT_EQ(2u, found.size());
}

TEST(TAddToVectorCallback, ServesOtherElements) {
  std::vector<boost::shared_ptr<ICIMClass> > found;
  boost::function<bool(boost::shared_ptr<ICIMClass>)> visit =
      TAddToVectorCallback<ICIMClass>(&found);
  const boost::shared_ptr<cim_test::RecordingNamespace> ns = cim_test::RecordingNamespace::Create();
  ns->Declare("Disk");
  EXPECT_TRUE(visit(ns->Class("Disk")));
  EXPECT_EQ(ns->Class("Disk"), found.at(0));
}

// Enumerations of real objects, which keep to the rules that callbacks rely on.
class Enumeration : public testing::Test {
 protected:
  Enumeration() : ns(CreateMemoryNamespace("root/test")) {
    cls = ns->CreateClass("Disk", boost::shared_ptr<ICIMClass>(), none);
    cls->Commit(none);
  }

  boost::shared_ptr<ICIMInstance> Add() {
    const boost::shared_ptr<ICIMInstance> instance = cls->CreateInstance(none);
    cls->AddInstance(instance);
    return instance;
  }

  const cim_test::Context none;
  const boost::shared_ptr<ICIMNamespace> ns;
  boost::shared_ptr<ICIMClass> cls;
};

TEST_F(Enumeration, OfNothingNeverCalls) {
  Visitor visit = [](boost::shared_ptr<ICIMInstance>) -> bool {
    ADD_FAILURE() << "there is nothing to visit";
    return true;
  };
  cls->EnumerateInstances(visit, true, none);
}

TEST_F(Enumeration, IsCollectedInItsOrder) {
  const std::vector<boost::shared_ptr<ICIMInstance> > instances = {Add(), Add(), Add()};
  std::vector<boost::shared_ptr<ICIMInstance> > found;
  Visitor visit = TAddToVectorCallback<ICIMInstance>(&found);
  cls->EnumerateInstances(visit, true, none);
  EXPECT_EQ(instances, found);
}

TEST_F(Enumeration, EndsAtTheFirstFalse) {
  Add();
  Add();
  Add();
  int calls = 0;
  Visitor visit = [&calls](boost::shared_ptr<ICIMInstance>) { return ++calls < 2; };
  cls->EnumerateInstances(visit, true, none);
  EXPECT_EQ(2, calls);
}

TEST_F(Enumeration, PassesWhatTheCallbackThrows) {
  Add();
  Visitor visit = [](boost::shared_ptr<ICIMInstance>) -> bool {
    throw TQDAException(TQDAStatusCode::kQDAStatusAccessDenied);
  };
  EXPECT_STATUS(kQDAStatusAccessDenied, cls->EnumerateInstances(visit, true, none));
}

TEST_F(Enumeration, UnknownClassIsNotFound) {
  EXPECT_STATUS(kQDAStatusNotFound, ns->GetClass("Fan", none));
}

}  // namespace
