#include <qda/Snapshot.h>

#include <vector>

#include <boost/function.hpp>

#include <fmt/format.h>

#include <qda/Text.h>
#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/object/ICIMQualifierDecl.h>
#include <qdacore/cim/object/TAddToVectorCallback.h>
#include <qdacore/cim/object/TCIMCopy.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/frame/TQDAException.h>
#include <qdamemory/MemoryNamespace.h>

namespace qda {

using boost::shared_ptr;
using namespace NZRVQDA20;

namespace {

typedef std::map<std::string, TCIMValue> Context;

template <class Question>
bool IsThere(Question ask) {
  try {
    ask();
    return true;
  } catch (const TQDAException& failure) {
    if (failure.GetStatus().GetStatusCode() != TQDAStatusCode::kQDAStatusNotFound) {
      throw;
    }
    return false;
  }
}

// Copies the instances of one namespace, each once, behind those that it refers to.
class InstanceCopier {
 public:
  InstanceCopier(const shared_ptr<ICIMNamespace>& source, const shared_ptr<ICIMNamespace>& target,
                 const std::string& provider)
      : fPaths(source), fTarget(target), fProvider(provider) {}

  // Those of the class itself.
  void CopyInstancesOf(const ICIMNamespace& source, const std::string& className) {
    std::vector<shared_ptr<ICIMInstance>> instances;
    try {
      const shared_ptr<ICIMClass> cls = source.GetClass(className, Context());
      if (!cls) {
        throw TQDAException(TQDAStatusCode::kQDAStatusNotFound);
      }
      boost::function<bool(shared_ptr<ICIMInstance>)> collect =
          TAddToVectorCallback<ICIMInstance>(&instances);
      cls->EnumerateInstances(collect, false, Context());
    } catch (const TQDAException& failure) {
      LeaveOut("what is left of the instances of " + className, failure);
    }
    for (const shared_ptr<ICIMInstance>& instance : instances) {
      Copy(instance);
    }
  }

  std::size_t Copied() const { return fCopied; }
  bool HasAll() const { return fHasAll; }

 private:
  // An instance on the way, and what it refers to.
  struct Step {
    shared_ptr<ICIMInstance> instance;
    InstancePath path;
    std::vector<shared_ptr<ICIMInstance>> referenced;
    std::size_t next;
  };

  // Not by recursion: how far references lead is the provider's word.
  void Copy(const shared_ptr<ICIMInstance>& instance) {
    std::vector<Step> way;
    Enter(instance, way);
    while (!way.empty()) {
      Step& at = way.back();
      if (at.next < at.referenced.size()) {
        Enter(shared_ptr<ICIMInstance>(at.referenced[at.next++]), way);
      } else {
        CopyOne(at.instance, at.path);
        way.pop_back();
      }
    }
  }

  // Nothing happens to one that was met before.
  void Enter(const shared_ptr<ICIMInstance>& instance, std::vector<Step>& way) {
    if (!instance) {
      return;
    }
    try {
      const InstancePath path = fPaths.PathOf(*instance);
      if (path.path.empty() || fSeen.insert(path.exact).second) {
        way.push_back({instance, path, ReferencedBy(*instance), 0});
      }
    } catch (const TQDAException& failure) {
      LeaveOut("an instance whose class cannot be had", failure);
    }
  }

  std::vector<shared_ptr<ICIMInstance>> ReferencedBy(const ICIMInstance& instance) {
    std::vector<shared_ptr<ICIMInstance>> referenced;
    boost::function<bool(shared_ptr<ICIMProperty>)> visit = [&](shared_ptr<ICIMProperty> property) {
      AddReferenced(property->GetValue(Context()), referenced);
      return true;
    };
    try {
      instance.EnumerateProperties(visit, Context());
    } catch (const TQDAException&) {
      // Copying it meets the same, and tells.
    }
    return referenced;
  }

  void AddReferenced(const TCIMValue& value, std::vector<shared_ptr<ICIMInstance>>& referenced) {
    if (value.IsNull()) {
      return;
    }
    if (value.IsArray()) {
      const std::vector<TCIMValue>& elements = value;
      for (const TCIMValue& element : elements) {
        AddReferenced(element, referenced);
      }
    } else if (value.IsReference()) {
      const shared_ptr<ICIMInstance> instance = Resolve(value);
      // One without a path would be copied once for each reference to it.
      if (instance && HasPath(*instance)) {
        referenced.push_back(instance);
      }
    }
  }

  // An empty pointer where it refers to nothing; the reference itself is copied all the same.
  static shared_ptr<ICIMInstance> Resolve(const TCIMReference& reference) {
    try {
      return boost::dynamic_pointer_cast<ICIMInstance>(reference.GetCIMElement(false));
    } catch (const TQDAException&) {
      return shared_ptr<ICIMInstance>();
    }
  }

  bool HasPath(const ICIMInstance& instance) {
    try {
      return !fPaths.PathOf(instance).path.empty();
    } catch (const TQDAException&) {
      return false;
    }
  }

  void CopyOne(const shared_ptr<ICIMInstance>& instance, const InstancePath& path) {
    try {
      TCIMCopy::CopyInstance(instance, fTarget);
      ++fCopied;
    } catch (const TQDAException& failure) {
      LeaveOut(path.path.empty() ? "an instance of " + path.className : path.path, failure);
    }
  }

  void LeaveOut(const std::string& what, const TQDAException& failure) {
    fHasAll = false;
    Complain(fmt::format("provider \"{}\": {} is left out ({})", fProvider, what, failure.what()));
  }

  PathFinder fPaths;
  const shared_ptr<ICIMNamespace> fTarget;
  const std::string fProvider;
  std::set<std::string> fSeen;
  std::size_t fCopied = 0;
  bool fHasAll = true;
};

bool IsEmpty(const ICIMNamespace& ns) {
  bool isEmpty = true;
  boost::function<bool(shared_ptr<ICIMClass>)> visitClass = [&isEmpty](shared_ptr<ICIMClass>) {
    return isEmpty = false;
  };
  boost::function<bool(shared_ptr<ICIMQualifierDecl>)> visitDeclaration =
      [&isEmpty](shared_ptr<ICIMQualifierDecl>) { return isEmpty = false; };
  ns.EnumerateClasses(visitClass, Context());
  ns.EnumerateQualifierDecls(visitDeclaration, Context());
  return isEmpty;
}

void AddMissingDeclarations(const ICIMNamespace& source, ICIMNamespace& target) {
  boost::function<bool(shared_ptr<ICIMQualifierDecl>)> visit =
      [&target](shared_ptr<ICIMQualifierDecl> declaration) {
        const std::string& name = declaration->GetName(Context());
        if (!IsThere([&] { target.GetQualifierDecl(name, Context()); })) {
          target
              .CreateQualifierDecl(name, declaration->GetValue(Context()),
                                   declaration->GetFirstAttribute(Context()),
                                   declaration->GetSecondAttribute(Context()), Context())
              ->Commit(Context());
        }
        return true;
      };
  source.EnumerateQualifierDecls(visit, Context());
}

}  // namespace

Snapshot::Snapshot() : fTarget(CreateMemoryNamespace("snapshot")) {}

Snapshot::Snapshot(const shared_ptr<ICIMNamespace>& target) : fTarget(target) {}

void Snapshot::AddSchema(const shared_ptr<ICIMNamespace>& source,
                         const std::vector<ClassNode>& classes) {
  if (IsEmpty(*fTarget)) {
    // The product's records come with the other instances.
    TCIMCopy::CopyClasses(source, fTarget, true);
    return;
  }
  AddMissingDeclarations(*source, *fTarget);
  for (const bool associations : {false, true}) {
    for (const ClassNode& node : classes) {
      if (node.isAssociation == associations &&
          !IsThere([&] { fTarget->GetClass(node.name, Context()); })) {
        TCIMCopy::CopyClass(source->GetClass(node.name, Context()), fTarget);
      }
    }
  }
}

bool Snapshot::Add(const shared_ptr<ICIMNamespace>& source, const std::string& provider) {
  const std::vector<ClassNode> classes = ReadClassTree(*source);
  AddSchema(source, classes);
  InstanceCopier copier(source, fTarget, provider);
  for (const ClassNode& node : classes) {
    copier.CopyInstancesOf(*source, node.name);
  }
  fInstances += copier.Copied();
  return copier.HasAll();
}

}  // namespace qda
