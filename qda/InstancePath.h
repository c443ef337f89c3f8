// The object path of an instance.

#ifndef QDA_INSTANCEPATH_H
#define QDA_INSTANCEPATH_H

#include <map>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

namespace NZRVQDA20 {
class ICIMClass;
class ICIMInstance;
class ICIMNamespace;
}  // namespace NZRVQDA20

namespace qda {

struct InstancePath {
  std::string className;
  std::string path;     // empty: it has none
  std::string exact;    // the path, with all digits of what a path rounds: no two have the same
  std::string whyNone;  // then why
};

// Finds the paths of many instances; which properties are keys is asked once a class.
class PathFinder {
 public:
  explicit PathFinder(const boost::shared_ptr<NZRVQDA20::ICIMNamespace>& ns);

  // An instance has no path when its class has no key, or a key is null or cannot be read. Throws
  // what the instance throws when it does not even tell its class.
  InstancePath PathOf(const NZRVQDA20::ICIMInstance& instance);

 private:
  const std::vector<std::string>& Keys(const boost::shared_ptr<NZRVQDA20::ICIMClass>& cls);

  const boost::shared_ptr<NZRVQDA20::ICIMNamespace> fNamespace;
  std::map<boost::shared_ptr<NZRVQDA20::ICIMClass>, std::vector<std::string>> fKeys;
};

}  // namespace qda

#endif
