// A namespace of one table, for queries: classes with instances, instances with properties. It
// records each call that a query makes, and can fail where a test wants it to.

#ifndef TESTS_IDENTITY_STUBNAMESPACE_H
#define TESTS_IDENTITY_STUBNAMESPACE_H

#include <functional>
#include <map>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/value/TCIMValue.h>
#include <qdacore/frame/TQDAException.h>

namespace identity_stub {

typedef std::map<std::string, NZRVQDA20::TCIMValue> Properties;

// What can fail; an empty function does nothing. Each throws what the test wants.
typedef std::function<void()> Failure;

struct Data {
  // Of each class its instances, in order. A class that is missing throws kQDAStatusNotFound; so
  // does a property that is missing.
  std::map<std::string, std::vector<Properties>> classes;

  Failure getClass;
  Failure enumerateInstances;
  Failure getProperty;
  Failure getValue;

  // Such as "GetClass CIM_Chassis {nspID=plugin}", "EnumerateInstances deep {}",
  // "GetProperty Model {nspID=plugin}", "GetValue {}" and "ToString".
  std::vector<std::string> calls;
};

// `data` belongs to the caller and outlives the namespace.
boost::shared_ptr<NZRVQDA20::ICIMNamespace> MakeNamespace(Data& data);

// A namespace with instances of one class, for a single query.
class OneClass {
 public:
  OneClass(const std::string& className, const std::vector<Properties>& instances) {
    fData.classes[className] = instances;
    fNamespace = MakeNamespace(fData);
  }
  OneClass(const OneClass&) = delete;
  OneClass& operator=(const OneClass&) = delete;

  operator boost::shared_ptr<NZRVQDA20::ICIMNamespace>() const { return fNamespace; }
  Data& GetData() { return fData; }

 private:
  Data fData;
  boost::shared_ptr<NZRVQDA20::ICIMNamespace> fNamespace;
};

// A failure of a provider's own type, to see whether a query passes on the very object.
class ProviderFailure : public NZRVQDA20::TQDAException {
 public:
  explicit ProviderFailure(NZRVQDA20::TQDAStatusCode::EQDAStatusCode status)
      : TQDAException(status) {}
};

inline Failure Throws(NZRVQDA20::TQDAStatusCode::EQDAStatusCode status) {
  return [status] { throw ProviderFailure(status); };
}

}  // namespace identity_stub

#endif
