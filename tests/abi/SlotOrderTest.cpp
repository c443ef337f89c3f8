// The place of each virtual operation in its table, as this very compiler lays it out.

#include <cstring>
#include <ostream>

#include <gtest/gtest.h>

#include <qdacore/qdacore.h>
#include <qdamemory/MemoryNamespace.h>

namespace {

using namespace NZRVQDA20;

// In the ABI of GCC and Clang a pointer to a virtual member function is its offset in the table
// plus 1. The destructor has two entries there, 0 and 1, so an operation in row N of its interface,
// the destructor being row 1, has entry N.
template <class Member>
int RowOf(Member member) {
  std::ptrdiff_t pointer = 0;
  std::memcpy(&pointer, &member, sizeof pointer);
  EXPECT_EQ(1, pointer % 8) << "not virtual";
  return static_cast<int>((pointer - 1) / 8);
}

struct Row {
  const char* operation;
  int row;
  int expected;
};

#define ROW(expected, operation) \
  Row { #operation, RowOf(&operation), expected }

// What the report shows in place of bytes.
std::ostream& operator<<(std::ostream& stream, const Row& row) {
  return stream << row.operation << " in row " << row.expected;
}

class SlotOrder : public testing::TestWithParam<Row> {};

TEST_P(SlotOrder, IsSettled) {
  EXPECT_EQ(GetParam().expected, GetParam().row) << GetParam().operation;
}

std::string TestName(const testing::TestParamInfo<Row>& info) {
  std::string name;
  for (const char* at = info.param.operation; *at; ++at) {
    name += std::isalnum(static_cast<unsigned char>(*at)) ? *at : '_';
  }
  return name;
}

INSTANTIATE_TEST_SUITE_P(
    ICIMNamespace, SlotOrder,
    testing::Values(ROW(2, ICIMNamespace::Reserved2), ROW(4, ICIMNamespace::Reserved4),
                    ROW(5, ICIMNamespace::CreateClass), ROW(6, ICIMNamespace::GetClass),
                    ROW(7, ICIMNamespace::EnumerateClasses), ROW(8, ICIMNamespace::Reserved8),
                    ROW(9, ICIMNamespace::CreateQualifierDecl),
                    ROW(10, ICIMNamespace::GetQualifierDecl),
                    ROW(11, ICIMNamespace::EnumerateQualifierDecls),
                    ROW(12, ICIMNamespace::Reserved12), ROW(13, ICIMNamespace::GetInstance)),
    TestName);

INSTANTIATE_TEST_SUITE_P(
    ICIMClass, SlotOrder,
    testing::Values(ROW(2, ICIMClass::Reserved2), ROW(3, ICIMClass::Commit),
                    ROW(4, ICIMClass::Reserved4), ROW(6, ICIMClass::GetName),
                    ROW(7, ICIMClass::GetNamespace), ROW(8, ICIMClass::IsAssociation),
                    ROW(9, ICIMClass::IsAbstract), ROW(10, ICIMClass::IsRootClass),
                    ROW(11, ICIMClass::GetSuperClass), ROW(12, ICIMClass::EnumerateSubClasses),
                    ROW(13, ICIMClass::Reserved13), ROW(16, ICIMClass::Reserved16),
                    ROW(17, ICIMClass::AddPropertyDecl), ROW(18, ICIMClass::GetPropertyDecl),
                    ROW(19, ICIMClass::EnumeratePropertyDecls), ROW(20, ICIMClass::Reserved20),
                    ROW(21, ICIMClass::SetStaticProperty),
                    ROW(22, ICIMClass::EnumerateStaticProperties),
                    ROW(23, ICIMClass::CreateInstance), ROW(24, ICIMClass::EnumerateInstances),
                    ROW(25, ICIMClass::AddMethodDecl), ROW(26, ICIMClass::Reserved26),
                    ROW(27, ICIMClass::EnumerateMethodDecls), ROW(28, ICIMClass::Reserved28),
                    ROW(35, ICIMClass::Reserved35), ROW(36, ICIMClass::AddInstance)),
    TestName);

INSTANTIATE_TEST_SUITE_P(ICIMNamedElement, SlotOrder,
                         testing::Values(ROW(2, ICIMNamedElement::ReservedElement2),
                                         ROW(3, ICIMNamedElement::ReservedElement3),
                                         ROW(4, ICIMNamedElement::AddQualifier),
                                         ROW(5, ICIMNamedElement::ReservedElement5),
                                         ROW(6, ICIMNamedElement::GetQualifier),
                                         ROW(7, ICIMNamedElement::EnumerateQualifiers)),
                         TestName);

INSTANTIATE_TEST_SUITE_P(
    Declarations, SlotOrder,
    testing::Values(ROW(8, ICIMPropertyDecl::Reserved8), ROW(9, ICIMPropertyDecl::Commit),
                    ROW(11, ICIMPropertyDecl::GetName), ROW(13, ICIMPropertyDecl::GetType),
                    ROW(14, ICIMPropertyDecl::Reserved14),
                    ROW(15, ICIMPropertyDecl::GetDefaultValue),
                    ROW(8, ICIMParameterDecl::Reserved8), ROW(9, ICIMParameterDecl::Commit),
                    ROW(10, ICIMParameterDecl::GetName), ROW(11, ICIMParameterDecl::Reserved11),
                    ROW(12, ICIMParameterDecl::GetType), ROW(8, ICIMMethodDecl::Reserved8),
                    ROW(9, ICIMMethodDecl::Reserved9), ROW(10, ICIMMethodDecl::GetName),
                    ROW(12, ICIMMethodDecl::GetType), ROW(13, ICIMMethodDecl::AddParameterDecl),
                    ROW(14, ICIMMethodDecl::Reserved14),
                    ROW(15, ICIMMethodDecl::EnumerateParameterDecls)),
    TestName);

INSTANTIATE_TEST_SUITE_P(
    Instances, SlotOrder,
    testing::Values(ROW(2, ICIMInstance::Reserved2), ROW(7, ICIMInstance::Reserved7),
                    ROW(8, ICIMInstance::GetClass), ROW(11, ICIMInstance::GetProperty),
                    ROW(12, ICIMInstance::SetProperty), ROW(13, ICIMInstance::EnumerateProperties),
                    ROW(2, ICIMProperty::Reserved2), ROW(5, ICIMProperty::GetValue),
                    ROW(8, ICIMProperty::GetPropertyDecl), ROW(9, ICIMProperty::Reserved9),
                    ROW(16, ICIMProperty::ToString)),
    TestName);

INSTANTIATE_TEST_SUITE_P(
    Qualifiers, SlotOrder,
    testing::Values(ROW(3, ICIMQualifier::Commit), ROW(8, ICIMQualifier::Reserved8),
                    ROW(9, ICIMQualifier::GetQualifierDecl), ROW(10, ICIMQualifier::GetValue),
                    ROW(3, ICIMQualifierDecl::Commit), ROW(5, ICIMQualifierDecl::GetName),
                    ROW(9, ICIMQualifierDecl::GetValue),
                    ROW(11, ICIMQualifierDecl::GetFirstAttribute),
                    ROW(14, ICIMQualifierDecl::GetSecondAttribute)),
    TestName);

INSTANTIATE_TEST_SUITE_P(
    Services, SlotOrder,
    testing::Values(ROW(2, ILogger::LogMessage), ROW(3, ILogger::LogSystemEvent),
                    ROW(4, ILogger::GetLogEntries), ROW(5, ILogger::ClearLogEntries),
                    ROW(6, ILogger::SetLogThreshold), ROW(7, ILogger::GetLogThreshold),
                    ROW(8, ILogger::SetLogFilename), ROW(2, INamespaceProvider::GetName),
                    ROW(3, INamespaceSource::GetNamespace), ROW(2, INamespaceConsumer::GetName),
                    ROW(3, INamespaceConsumer::GetDescription), ROW(4, INamespaceConsumer::Consume),
                    ROW(2, INamespaceProviderManager::RegisterNamespaceProvider),
                    ROW(3, INamespaceProviderManager::GetNamespaceProvider),
                    ROW(4, INamespaceProviderManager::EnumerateNamespaceProviders),
                    ROW(2, TQDAException::what), ROW(2, TBoostAssertException::what)),
    TestName);

// Slot n of a body, its destructor being slot 0, is row n + 1.
INSTANTIATE_TEST_SUITE_P(
    Bodies, SlotOrder,
    testing::Values(
        ROW(2, TCIMValueImpl::operator bool), ROW(3, TCIMValueImpl::operator unsigned char),
        ROW(4, TCIMValueImpl::operator signed char), ROW(5, TCIMValueImpl::operator unsigned short),
        ROW(6, TCIMValueImpl::operator short), ROW(7, TCIMValueImpl::operator unsigned int),
        ROW(8, TCIMValueImpl::operator int), ROW(9, TCIMValueImpl::operator unsigned long long),
        ROW(10, TCIMValueImpl::operator long long), ROW(11, TCIMValueImpl::operator float),
        ROW(12, TCIMValueImpl::operator double), ROW(13, TCIMValueImpl::operator std::string),
        ROW(14, TCIMValueImpl::operator TCIMChar16), ROW(15, TCIMValueImpl::operator TCIMDateTime),
        ROW(16, TCIMValueImpl::operator TCIMReference),
        ROW(17, TCIMValueImpl::operator std::vector<TCIMValue>&), ROW(18, TCIMValueImpl::ToString),
        ROW(19, TCIMValueImpl::operator==), ROW(20, TCIMValueImpl::operator<)),
    TestName);

// The two tables of a class: as a named element it is another address, reached by the upcast.
TEST(ClassBases, ElementFirstThenNamedElement) {
  const boost::shared_ptr<ICIMNamespace> ns = CreateMemoryNamespace("slots");
  const boost::shared_ptr<ICIMClass> cls =
      ns->CreateClass("Any", boost::shared_ptr<ICIMClass>(), std::map<std::string, TCIMValue>());
  const char* const place = reinterpret_cast<const char*>(cls.get());
  EXPECT_EQ(place, reinterpret_cast<const char*>(static_cast<ICIMElement*>(cls.get())));
  EXPECT_EQ(place + sizeof(void*),
            reinterpret_cast<const char*>(static_cast<ICIMNamedElement*>(cls.get())));
}

}  // namespace
