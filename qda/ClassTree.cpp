#include <qda/ClassTree.h>

#include <map>
#include <set>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <qda/Text.h>
#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMNamespace.h>

namespace qda {

using boost::shared_ptr;
using NZRVQDA20::ICIMClass;
using NZRVQDA20::ICIMNamespace;
using NZRVQDA20::TCIMValue;

namespace {

typedef std::map<std::string, TCIMValue> Context;
typedef boost::function<bool(shared_ptr<ICIMClass>)> Visit;

struct Waiting {
  shared_ptr<ICIMClass> cls;
  std::string superclass;
  unsigned int depth;
};

// Puts what `enumerate` presents on the stack, the first on top.
template <class Enumerate>
void Push(const Enumerate& enumerate, const std::string& superclass, unsigned int depth,
          std::vector<Waiting>* stack) {
  std::vector<Waiting> presented;
  Visit add = [&](shared_ptr<ICIMClass> cls) {
    if (cls) {
      presented.push_back({cls, superclass, depth});
    }
    return true;
  };
  enumerate(add);
  stack->insert(stack->end(), presented.rbegin(), presented.rend());
}

}  // namespace

std::vector<ClassNode> ReadClassTree(const ICIMNamespace& ns) {
  std::vector<ClassNode> nodes;
  std::set<std::string> seen;
  // Not by recursion: how deep the tree is, is the provider's word.
  std::vector<Waiting> stack;
  Push([&ns](Visit& visit) { ns.EnumerateClasses(visit, Context()); }, "", 0, &stack);
  while (!stack.empty()) {
    const Waiting at = stack.back();
    stack.pop_back();
    const std::string name = at.cls->GetName(Context());
    if (!seen.insert(Folded(name)).second) {
      continue;
    }
    nodes.push_back({name, at.superclass, at.depth, at.cls->IsAbstract(Context()),
                     at.cls->IsAssociation(Context())});
    Push([&at](Visit& visit) { at.cls->EnumerateSubClasses(visit, false, Context()); }, name,
         at.depth + 1, &stack);
  }
  return nodes;
}

}  // namespace qda
