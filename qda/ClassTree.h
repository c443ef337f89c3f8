// The classes of a namespace, as a tree.

#ifndef QDA_CLASSTREE_H
#define QDA_CLASSTREE_H

#include <string>
#include <vector>

namespace NZRVQDA20 {
class ICIMNamespace;
}

namespace qda {

struct ClassNode {
  std::string name;
  std::string superclass;  // empty for a root class
  unsigned int depth = 0;  // 0 for a root class
  bool isAbstract = false;
  bool isAssociation = false;
};

// Each class behind its superclass and before that one's next subclass; siblings in the
// namespace's order. A class that is presented twice counts once, so that a tree that bites its
// tail ends. Throws what the namespace throws.
std::vector<ClassNode> ReadClassTree(const NZRVQDA20::ICIMNamespace& ns);

}  // namespace qda

#endif
