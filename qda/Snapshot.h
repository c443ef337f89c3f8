// Snapshot: what providers serve, copied into one namespace in memory.

#ifndef QDA_SNAPSHOT_H
#define QDA_SNAPSHOT_H

#include <set>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include <qda/ClassTree.h>
#include <qda/InstancePath.h>

namespace NZRVQDA20 {
class ICIMClass;
class ICIMInstance;
class ICIMNamespace;
}  // namespace NZRVQDA20

namespace qda {

class Snapshot {
 public:
  Snapshot();
  // Into this namespace, which is empty.
  explicit Snapshot(const boost::shared_ptr<NZRVQDA20::ICIMNamespace>& target);

  const boost::shared_ptr<NZRVQDA20::ICIMNamespace>& Namespace() const { return fTarget; }
  std::size_t InstanceCount() const { return fInstances; }

  // Copies schema and instances of a provider's namespace, referenced instances first. Declarations
  // and classes that an earlier provider had under the same name stay as they were. False when an
  // instance had to be left out, which is told on standard error; the others are there. Throws what
  // the two namespaces throw for the schema.
  bool Add(const boost::shared_ptr<NZRVQDA20::ICIMNamespace>& source, const std::string& provider);

 private:
  void AddSchema(const boost::shared_ptr<NZRVQDA20::ICIMNamespace>& source,
                 const std::vector<ClassNode>& classes);

  const boost::shared_ptr<NZRVQDA20::ICIMNamespace> fTarget;
  std::size_t fInstances = 0;
};

}  // namespace qda

#endif
