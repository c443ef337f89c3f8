// Makes the compiler lay out every class whose table of virtual operations, or whose order of
// members, is a contract with plug-ins. Compiled for its dumps only, never linked.

#include <qdacore/qdacore.h>

namespace NZRVQDA20 {

// A constructor needs the table of its class and of all bases.
#define QDACORE_TABLE(name)     \
  struct TableOf##name : name { \
    TableOf##name();            \
  };                            \
  TableOf##name::TableOf##name() {}

QDACORE_TABLE(ICIMElement)
QDACORE_TABLE(ICIMNamedElement)
QDACORE_TABLE(ICIMNamespace)
QDACORE_TABLE(ICIMClass)
QDACORE_TABLE(ICIMInstance)
QDACORE_TABLE(ICIMProperty)
QDACORE_TABLE(ICIMPropertyDecl)
QDACORE_TABLE(ICIMParameterDecl)
QDACORE_TABLE(ICIMMethodDecl)
QDACORE_TABLE(ICIMQualifier)
QDACORE_TABLE(ICIMQualifierDecl)
QDACORE_TABLE(ILogger)
QDACORE_TABLE(INamespaceProvider)
QDACORE_TABLE(INamespaceSource)
QDACORE_TABLE(INamespaceConsumer)
QDACORE_TABLE(INamespaceProviderManager)

// These have no open constructor, or none without arguments.
struct TableOfTCIMValueImpl : TCIMValueImpl {
  TableOfTCIMValueImpl();
};
TableOfTCIMValueImpl::TableOfTCIMValueImpl() {}

struct TableOfTQDAException : TQDAException {
  TableOfTQDAException();
};
TableOfTQDAException::TableOfTQDAException() : TQDAException(TQDAStatusCode::kQDAStatusOK) {}

struct TableOfTBoostAssertException : TBoostAssertException {
  TableOfTBoostAssertException();
};
TableOfTBoostAssertException::TableOfTBoostAssertException() : TBoostAssertException("") {}

// A size needs the order of members.
#define QDACORE_RECORD(name) char sizeOf##name[sizeof(name)]

QDACORE_RECORD(TQDAStatusCode);
QDACORE_RECORD(TCIMValue);
QDACORE_RECORD(TCIMDateTime);
QDACORE_RECORD(TCIMDateTimeImpl);
QDACORE_RECORD(TCIMChar16Impl);
QDACORE_RECORD(TCIMReference);
QDACORE_RECORD(TCIMReferenceImpl);
QDACORE_RECORD(TCIMNumericValueImpl);
QDACORE_RECORD(TCIMStringValueImpl);
QDACORE_RECORD(TCIMChar16ValueImpl);
QDACORE_RECORD(TCIMDateTimeValueImpl);
QDACORE_RECORD(TCIMReferenceValueImpl);
QDACORE_RECORD(TCIMArrayValueImpl);
QDACORE_RECORD(TCIMChar16);
char sizeOfTCIMType[sizeof(TCIMValue::TCIMType)];
QDACORE_RECORD(IIPMILan);
QDACORE_RECORD(TLogger);
QDACORE_RECORD(TLogEntry);
QDACORE_RECORD(TNamespaceProviderManager);

}  // namespace NZRVQDA20
