// TCIMReference: the CIM reference type: the name of a class, or of one instance of a
// class, in a namespace (DSP0004, "Object naming").
//
// A reference is more than text: it holds its class, its key values are typed and were
// checked against the class's property declarations, and it can resolve itself to what it
// names. So reading a path needs a namespace to ask:
//
//   TCIMReference disk(ns, "CIM_DiskDrive.DeviceID=\"sda\",SystemName=\"host\"", context);
//   boost::shared_ptr<ICIMElement> element = disk.GetCIMElement(false);
//
// The path text and what it tolerates:
//   * a class name alone, or the class name, ".", and bindings name="value" with "," or "."
//     between them; every value stands in double quotes, numbers too;
//   * in a path with keys, all up to the first ":" of the class name is dropped, so a
//     namespace prefix is allowed and ignored (the prefix is never written, and a path
//     without keys takes it as part of the class name);
//   * \\ and \" inside a value stand for one backslash and a quote; before any other
//     character the backslash stays;
//   * the value of a reference key is itself a path, unescaped; quotes nest, up to 256
//     levels deep;
//   * the class name ends at the first "." of the text;
//   * a key of a char16 property cannot be read, because such a value reads as a string.
// Paths are written with the bindings sorted by name, byte by byte, and joined by ",".
//
// The namespace is held weakly, so a reference never keeps one alive; the class is held.
// Failures are TQDAException; each operation names its status. Threads: no locks, and
// GetCIMElement keeps what it found although it is const.

#ifndef QDACORE_CIM_VALUE_TCIMREFERENCE_H
#define QDACORE_CIM_VALUE_TCIMREFERENCE_H

#include <map>
#include <string>
#include <utility>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>
#include <qdacore/cim/value/TCIMValue.h>

// <windows.h> makes GetClassName a macro. It is lifted for the class below, which has
// the same operation under the names that the macro makes of it, so that a caller may
// include the two headers in either order.
#if defined(_WIN32)
#pragma push_macro("GetClassName")
#undef GetClassName
#endif

namespace NZRVQDA20 {

class ICIMClass;
class ICIMElement;
class ICIMNamespace;
class TCIMReferenceImpl;

class QDACORE_EXPORT TCIMReference {
 public:
  // An empty reference. `context` is handed by copy to every class lookup.
  TCIMReference(boost::shared_ptr<ICIMNamespace> ns = boost::shared_ptr<ICIMNamespace>(),
                std::map<std::string, TCIMValue> context = std::map<std::string, TCIMValue>());

  // As above, then SetPath(path).
  TCIMReference(boost::shared_ptr<ICIMNamespace> ns, const std::string& path,
                std::map<std::string, TCIMValue> context);

  // A body of its own with copies of everything.
  TCIMReference(const TCIMReference& other);
  TCIMReference& operator=(const TCIMReference& other);
  ~TCIMReference();

  // The path text. With no class a failed assertion; throws kQDAStatusValueIsNULL when a
  // key is null.
  std::string GetPath() const;

  // Reads a path. Throws
  //   kQDAStatusInvalidOpSequence  the namespace is gone, or class or keys are set already
  //                                (Clear, then SetNamespace, to use it again)
  //   kQDAStatusInvalidReference   unknown class or property, or bad syntax, after a line
  //                                in the core log that shows the whole text
  //   and what looking up a class without keys, or reading a key's value, throws.
  // What was bound before a failure stays bound.
  void SetPath(const std::string& path);

  // The class's own name, valid as long as the class. With no class a failed assertion.
  const std::string& GetClassName() const;
  // Looks the class up. Throws kQDAStatusInvalidOpSequence when the namespace is gone or
  // there are keys, and whatever the lookup throws (kQDAStatusNotFound).
  void SetClassName(const std::string& name);
#if defined(_WIN32)
  const std::string& GetClassNameA() const { return GetClassName(); }
  const std::string& GetClassNameW() const { return GetClassName(); }
#endif

  // Throws kQDAStatusInvalidReference when there is none.
  boost::shared_ptr<ICIMClass> GetClass() const;
  // Throws kQDAStatusInvalidOpSequence when there are keys.
  void SetClass(boost::shared_ptr<ICIMClass> cls);

  // Empty when the namespace is gone.
  boost::shared_ptr<ICIMNamespace> GetNamespace();
  void SetNamespace(boost::shared_ptr<ICIMNamespace> ns);

  // A free label: stored, given back and compared by ==, and used for nothing else.
  std::string GetNameSpaceName() const;
  void SetNameSpaceName(std::string name);

  void SetContext(std::map<std::string, TCIMValue> context);

  // Binds a copy of `value`. A name that is bound already keeps its first value. Throws
  //   kQDAStatusInvalidOpSequence  no class
  //   kQDAStatusTypeMismatch       not of the declared type, after an error line
  //   kQDAStatusNotFound           no such property (the class's own failure)
  void AddKeyValue(const std::string& name, const TCIMValue& value);

  // Calls `visit` with a copy of each binding, in order of names, until it returns false.
  void EnumerateKeyBindings(
      const boost::function<bool(std::pair<std::string, TCIMValue>)>& visit) const;

  // The class when `classOnly` or when there are no keys (empty when there is no class);
  // otherwise the instance, which the class's namespace is asked for once and which is then
  // kept until Clear. Throws kQDAStatusNotFound when there is no such instance.
  boost::shared_ptr<ICIMElement> GetCIMElement(bool classOnly) const;

  // Forgets namespace, class, keys and the resolved instance. Context and namespace name
  // stay.
  void Clear();

  // Equal: the same class object, equal keys, and equal namespace names. Order: by class
  // object (stable within a run, no meaning otherwise), then by keys; the namespace name has
  // no part in it, so two references can be neither equal nor ordered.
  bool operator==(const TCIMReference& other) const;
  bool operator<(const TCIMReference& other) const;

 private:
  // Fills the reference within a reference.
  friend class ObjectPathParser;

  // An empty reference, made without another share of the namespace. Takes the context over.
  TCIMReference(const boost::shared_ptr<ICIMNamespace>* ns,
                std::map<std::string, TCIMValue>* context);

  TCIMReferenceImpl* GetBody() const;

  TCIMReferenceImpl* fBody;
};

}  // namespace NZRVQDA20

#if defined(_WIN32)
#pragma pop_macro("GetClassName")
#endif

#endif
