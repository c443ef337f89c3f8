// The reader of object path text: see TCIMReference.h for what it accepts.

#ifndef QDACORE_CIM_VALUE_INTERNAL_OBJECTPATHPARSER_H
#define QDACORE_CIM_VALUE_INTERNAL_OBJECTPATHPARSER_H

#include <cstddef>
#include <map>
#include <string>

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <qdacore/cim/value/TCIMReference.h>

namespace NZRVQDA20 {

class ICIMPropertyDecl;
class TCIMReferenceImpl;

class ObjectPathParser {
 public:
  // All three must outlive the parser. `held` is the namespace again, for a caller who holds it all
  // the while, or null: taking a share of it for each class is not free. `depth` paths are being
  // read already.
  ObjectPathParser(const std::string& text, const boost::weak_ptr<ICIMNamespace>& ns,
                   const std::map<std::string, TCIMValue>& context, const ICIMNamespace* held,
                   int depth);

  // Fills `body`, which has neither class nor keys. Throws what
  // TCIMReference::SetPath does; what was bound by then stays bound.
  void Parse(TCIMReferenceImpl& body);

 private:
  void ParsePath(TCIMReferenceImpl& body, bool nested);
  void ParseBinding(TCIMReferenceImpl& body, const ICIMClass& cls);
  TCIMValue ParseNestedPath();
  TCIMValue ParseValue(TCIMValue::TCIMType type, std::string& text);
  void GoDeeper();
  boost::shared_ptr<ICIMClass> LookUpClass(const std::string& name) const;
  boost::shared_ptr<const ICIMPropertyDecl> LookUpProperty(const ICIMClass& cls,
                                                           const std::string& name) const;
  std::size_t Find(char character) const;
  std::string ParsePropertyName();
  std::string ReadQuotedValue();
  bool AtEnd() const { return fPosition >= fText.size(); }
  [[noreturn]] void Refuse(const std::string& reason) const;

  const std::string& fText;
  const boost::weak_ptr<ICIMNamespace>& fNamespace;
  const ICIMNamespace* const fHeld;
  const std::map<std::string, TCIMValue>& fContext;
  std::size_t fPosition;
  int fDepth;
};

}  // namespace NZRVQDA20

#endif
