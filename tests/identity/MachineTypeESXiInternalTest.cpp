// The smaller parser alone, with texts that the query before it never gives: without both
// brackets that says "Unknown". The linker puts ModelToParse in the query's place.

#include <string>

#include <gtest/gtest.h>
#include <boost/shared_ptr.hpp>

#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/identity/TCIMSchemaHelper.h>

namespace identity_test {

std::string model;

std::string ModelToParse(boost::shared_ptr<NZRVQDA20::ICIMNamespace>);
std::string ModelToParse(boost::shared_ptr<NZRVQDA20::ICIMNamespace>) { return model; }

}  // namespace identity_test

namespace {

struct ParserRow {
  const char* model;
  const char* expected;
};

const ParserRow kModels[] = {
    {"x-[1357AC1]-", "1357AC1"},
    // Without an opening bracket the text from position 1 on counts; that is meant.
    {"1357AC1]- X", "357AC1"},
    {"12]-", "2"},
    {"1]-", "Unknown"},
    {"]-", "Unknown"},
    {" ]-]-", "Unknown"},
    {"  ]-]-", " "},
    {"-[1357AC1", "Unknown"},
    {"Unknown", "Unknown"},
    {"", "Unknown"},
};

TEST(GetMTMESXi, TextWithoutAnOpeningBracketCountsFromItsSecondCharacter) {
  for (const ParserRow& row : kModels) {
    SCOPED_TRACE(row.model);
    identity_test::model = row.model;
    EXPECT_EQ(row.expected, NZRVQDA20::TCIMSchemaHelper::GetMTM_vmwesxi(
                                boost::shared_ptr<NZRVQDA20::ICIMNamespace>()));
  }
}

}  // namespace
