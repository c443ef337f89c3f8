#include <qdamemory/mof/WritingOrder.h>

#include <cstddef>
#include <map>
#include <string>
#include <utility>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/TAddToVectorCallback.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/frame/TQDAException.h>
#include <qdamemory/internal/CIMName.h>
#include <qdamemory/internal/Context.h>

namespace NZRVQDA20 {
namespace mof {

namespace {

typedef boost::shared_ptr<ICIMClass> Class;
typedef std::vector<Class> Classes;

// One class on the way: what it needs, and how much of that has been looked at.
struct Node {
  Class cls;
  std::vector<std::size_t> needs;
  std::size_t next = 0;
  bool isSeen = false;
};

class Sorter {
 public:
  explicit Sorter(const ICIMNamespace& ns) {
    Classes roots;
    boost::function<bool(Class)> collect = TAddToVectorCallback<ICIMClass>(&roots);
    ns.EnumerateClasses(collect, TContext());
    AddSiblings(roots);
    for (Node& node : fNodes) {
      AddReferences(node);
    }
  }

  Classes Sort() {
    Classes sorted;
    for (std::size_t at = 0; at < fNodes.size(); ++at) {
      Visit(at, sorted);
    }
    return sorted;
  }

 private:
  // Without recursion: a tree may be deep.
  void AddSiblings(const Classes& roots) {
    std::vector<std::pair<Classes, std::size_t> > levels;  // siblings, and their superclass + 1
    levels.push_back(std::make_pair(roots, std::size_t(0)));
    while (!levels.empty()) {
      const std::pair<Classes, std::size_t> level = levels.back();
      levels.pop_back();
      std::size_t sibling = 0;
      for (const Class& cls : level.first) {
        Node node;
        node.cls = cls;
        if (level.second != 0) {
          node.needs.push_back(level.second - 1);
        }
        if (sibling != 0) {
          node.needs.push_back(sibling - 1);
        }
        fNodes.push_back(node);
        sibling = fNodes.size();
        fByName[FoldCIMName(cls->GetName(TContext()))] = sibling - 1;
        Classes below;
        boost::function<bool(Class)> collect = TAddToVectorCallback<ICIMClass>(&below);
        cls->EnumerateSubClasses(collect, false, TContext());
        if (!below.empty()) {
          levels.push_back(std::make_pair(below, sibling));
        }
      }
    }
  }

  void AddReferences(Node& node) {
    for (const boost::shared_ptr<ICIMPropertyDecl>& declaration : OwnPropertyDecls(*node.cls)) {
      AddReferences(node, declaration->GetDefaultValue(TContext()));
    }
  }

  // The class that the value may refer to, and those of what it refers to, keys included.
  void AddReferences(Node& node, const TCIMValue& value) {
    const Class referenced = value.GetReferencedClass();
    if (referenced && referenced != node.cls) {
      const auto found = fByName.find(FoldCIMName(referenced->GetName(TContext())));
      if (found != fByName.end()) {
        node.needs.push_back(found->second);
      }
    }
    if (value.IsNull()) {
      return;
    }
    if (value.IsReference()) {
      const TCIMReference reference = value;
      reference.EnumerateKeyBindings([&](const std::pair<std::string, TCIMValue>& binding) {
        AddReferences(node, binding.second);
        return true;
      });
    } else if ((value.GetType() & ~TCIMValue::TCIMType::kCIMTypeArrayFlag) ==
               TCIMValue::TCIMType::kCIMTypeReference) {
      const std::vector<TCIMValue>& elements = value;
      for (const TCIMValue& element : elements) {
        AddReferences(node, element);
      }
    }
  }

  void Visit(std::size_t first, Classes& sorted) {
    std::vector<std::size_t> path(1, first);
    if (fNodes[first].isSeen) {
      return;
    }
    fNodes[first].isSeen = true;
    while (!path.empty()) {
      Node& node = fNodes[path.back()];
      if (node.next == node.needs.size()) {
        sorted.push_back(node.cls);
        path.pop_back();
        continue;
      }
      const std::size_t needed = node.needs[node.next++];
      if (!fNodes[needed].isSeen) {
        fNodes[needed].isSeen = true;
        path.push_back(needed);
      }
    }
  }

  std::vector<Node> fNodes;
  std::map<std::string, std::size_t> fByName;
};

}  // namespace

Classes ClassesInWritingOrder(const ICIMNamespace& ns) { return Sorter(ns).Sort(); }

std::vector<boost::shared_ptr<ICIMPropertyDecl> > OwnPropertyDecls(const ICIMClass& cls) {
  std::vector<boost::shared_ptr<ICIMPropertyDecl> > own;
  const Class superclass = cls.IsRootClass(TContext()) ? Class() : cls.GetSuperClass(TContext());
  boost::function<bool(boost::shared_ptr<ICIMPropertyDecl>)> visit =
      [&](boost::shared_ptr<ICIMPropertyDecl> declaration) {
        try {
          if (superclass && superclass->GetPropertyDecl(declaration->GetName(TContext()),
                                                        TContext()) == declaration) {
            return true;
          }
        } catch (const TQDAException&) {
          // New in this class.
        }
        own.push_back(declaration);
        return true;
      };
  cls.EnumeratePropertyDecls(visit, TContext());
  return own;
}

}  // namespace mof
}  // namespace NZRVQDA20
