// The pattern behind the identity queries: a class, its instances, one property.

#ifndef QDACORE_IDENTITY_INTERNAL_SINGLEINSTANCE_H
#define QDACORE_IDENTITY_INTERNAL_SINGLEINSTANCE_H

#include <map>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

class ICIMClass;
class ICIMInstance;
class ICIMNamespace;

typedef std::map<std::string, TCIMValue> TContext;
typedef std::vector<boost::shared_ptr<ICIMInstance> > TInstances;

// The context that asks for the plug-in provider.
TContext PluginContext();

// All instances of a class and of its subclasses.
TInstances CollectInstances(const ICIMClass& cls);

// The value of a property of the one instance of a class. Throws kQDAStatusNotFound when there is
// not exactly one, and whatever the provider throws. Logs nothing.
TCIMValue PropertyOfSingleInstance(const boost::shared_ptr<ICIMNamespace>& ns,
                                   const std::string& className, const std::string& propertyName);

inline bool IsAnyText(const std::string&) { return true; }

// The text of a property of the first instance that has it and whose text `accepts`; "Unknown" on
// any failure. Never throws TQDAException.
std::string FirstPropertyText(const boost::shared_ptr<ICIMNamespace>& ns,
                              const std::string& className, const std::string& propertyName,
                              bool (*accepts)(const std::string& text) = IsAnyText);

}  // namespace NZRVQDA20

#endif
