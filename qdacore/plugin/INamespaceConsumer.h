// INamespaceConsumer: a plug-in object that reads a namespace and writes what it makes of it.
// A consumer module NAME.nsc.dll exports one plain function, which makes the object:
//
//   extern "C" NZRVQDA20::INamespaceConsumer* NAME_CreateINamespaceConsumer();
//
// TOSSpecific::LoadNSCLibrary calls it and hands the object to its caller, who deletes it. The
// function must not throw; a null pointer says that there is no object.

#ifndef QDACORE_PLUGIN_INAMESPACECONSUMER_H
#define QDACORE_PLUGIN_INAMESPACECONSUMER_H

#include <iosfwd>
#include <map>
#include <string>

#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>
#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

class ICIMNamespace;

class QDACORE_EXPORT INamespaceConsumer {
 public:
  INamespaceConsumer();
  INamespaceConsumer(const INamespaceConsumer& other);
  INamespaceConsumer& operator=(const INamespaceConsumer& other);
  virtual ~INamespaceConsumer();

  // A short name, valid as long as the consumer.
  virtual const std::string& GetName(std::map<std::string, TCIMValue> context) const = 0;

  // One line for people.
  virtual std::string GetDescription(std::map<std::string, TCIMValue> context) const = 0;

  // Reads `source` and writes to `output`. Throws TQDAException when it cannot.
  virtual void Consume(boost::shared_ptr<ICIMNamespace> source, std::ostream& output,
                       std::map<std::string, TCIMValue> context) = 0;
};

}  // namespace NZRVQDA20

#endif
