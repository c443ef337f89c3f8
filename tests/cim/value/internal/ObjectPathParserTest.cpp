// The limit on nested references, which holds whatever is in the text.

#include <qdacore/cim/value/internal/ObjectPathParser.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <qdacore/cim/value/TCIMReferenceImpl.h>
#include <tests/cim/RecordingNamespace.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>

namespace {

using namespace NZRVQDA20;
using cim_test::Context;
using cim_test::RecordingNamespace;
using testing::ElementsAre;
using testing::IsEmpty;

std::string Repeated(const std::string& text, int count) {
  std::string all;
  for (; count > 0; --count) {
    all += text;
  }
  return all;
}

// References inside one another, `depth` of them.
std::string NestedPath(int depth) {
  return Repeated("Cls.Ref=\"", depth) + "Cls.A=\"1\"" + Repeated("\"", depth);
}

class ObjectPathParserTest : public testing::Test {
 protected:
  ObjectPathParserTest() : ns(RecordingNamespace::Create()), weak(ns) {
    ns->Declare("Cls")
        .With("A", TCIMValue::TCIMType::kCIMTypeString)
        .With("Ref", TCIMValue::TCIMType::kCIMTypeReference)
        .With("Ref2", TCIMValue::TCIMType::kCIMTypeReference);
  }

  // The text as the parser's own reading of it gives it back.
  std::string Parse(const std::string& text) {
    const TCIMReference owner;
    Context bodysContext;
    TCIMReferenceImpl body(&owner, ns, bodysContext);
    ObjectPathParser(text, weak, context, nullptr, 0).Parse(body);
    return body.GetPath();
  }

  test_support::LogCapture log;
  const boost::shared_ptr<RecordingNamespace> ns;
  const boost::weak_ptr<ICIMNamespace> weak;
  const Context context;
};

TEST_F(ObjectPathParserTest, FillsTheBodyItIsGiven) {
  EXPECT_EQ("Cls.A=\"1\"", Parse("Cls.A=\"1\""));
}

TEST_F(ObjectPathParserTest, TwoHundredFiftySixLevelsAreRead) {
  EXPECT_EQ(NestedPath(256), Parse(NestedPath(256)));
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(ObjectPathParserTest, OneMoreIsRefused) {
  EXPECT_STATUS(kQDAStatusInvalidReference, Parse(NestedPath(257)));
  EXPECT_THAT(log.Lines(),
              ElementsAre("[Error] Reference nested too deeply, path=" + NestedPath(257)));
}

TEST_F(ObjectPathParserTest, HundredThousandLevelsAreRefusedWithoutHarm) {
  EXPECT_STATUS(kQDAStatusInvalidReference, Parse(NestedPath(100000)));
  EXPECT_STATUS(kQDAStatusInvalidReference, Parse(Repeated("Cls.Ref=\"", 100000)));
}

TEST_F(ObjectPathParserTest, LevelsSideBySideDoNotAddUp) {
  const std::string path = "Cls.Ref=\"" + NestedPath(200) + "\",Ref2=\"" + NestedPath(200) + "\"";
  EXPECT_EQ(path, Parse(path));
}

TEST_F(ObjectPathParserTest, SetPathHasTheSameLimit) {
  EXPECT_EQ(NestedPath(256), TCIMReference(ns, NestedPath(256), context).GetPath());
  EXPECT_STATUS(kQDAStatusInvalidReference, TCIMReference(ns, NestedPath(257), context));
}

}  // namespace
