#include <qda/Snapshot.h>

#include <vector>

#include <boost/function.hpp>

#include <fmt/format.h>

#include <qda/ClassTree.h>
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

// References are followed this far; what lies behind comes in the order of its class.
const int kDeepestReference = 100;

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

  void Copy(const shared_ptr<ICIMInstance>& instance, int depth) {
    const InstancePath path = fPaths.PathOf(*instance);
    if (!path.path.empty() && !fSeen.insert(path.path).second) {
      return;
    }
    if (depth < kDeepestReference) {
      boost::function<bool(shared_ptr<ICIMProperty>)> visit =
          [this, depth](shared_ptr<ICIMProperty> property) {
            CopyReferenced(property->GetValue(Context()), depth);
            return true;
          };
      instance->EnumerateProperties(visit, Context());
    }
    CopyOne(instance, path);
  }

  std::size_t Copied() const { return fCopied; }
  bool HasAll() const { return fHasAll; }

 private:
  void CopyReferenced(const TCIMValue& value, int depth) {
    if (!value.IsReference() || value.IsNull()) {
      return;
    }
    try {
      const TCIMReference reference = value;
      const shared_ptr<ICIMInstance> referenced =
          boost::dynamic_pointer_cast<ICIMInstance>(reference.GetCIMElement(false));
      // One without a path would be copied once for each reference to it.
      if (referenced && !fPaths.PathOf(*referenced).path.empty()) {
        Copy(referenced, depth + 1);
      }
    } catch (const TQDAException&) {
      // It refers to nothing here; the reference itself is copied all the same.
    }
  }

  void CopyOne(const shared_ptr<ICIMInstance>& instance, const InstancePath& path) {
    try {
      TCIMCopy::CopyInstance(instance, fTarget);
      ++fCopied;
    } catch (const TQDAException& failure) {
      fHasAll = false;
      Complain(fmt::format("provider \"{}\": {} is left out ({})", fProvider,
                           path.path.empty() ? "an instance of " + path.className : path.path,
                           failure.what()));
    }
  }

  PathFinder fPaths;
  const shared_ptr<ICIMNamespace> fTarget;
  const std::string fProvider;
  std::set<std::string> fSeen;
  std::size_t fCopied = 0;
  bool fHasAll = true;
};

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

void Snapshot::AddSchema(const shared_ptr<ICIMNamespace>& source) {
  if (fIsEmpty) {
    // The product's records come with the other instances.
    TCIMCopy::CopyClasses(source, fTarget, true);
    return;
  }
  AddMissingDeclarations(*source, *fTarget);
  const std::vector<ClassNode> classes = ReadClassTree(*source);
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
  AddSchema(source);
  fIsEmpty = fIsEmpty && classes.empty();
  InstanceCopier copier(source, fTarget, provider);
  for (const ClassNode& node : classes) {
    std::vector<shared_ptr<ICIMInstance>> instances;
    boost::function<bool(shared_ptr<ICIMInstance>)> collect =
        TAddToVectorCallback<ICIMInstance>(&instances);
    source->GetClass(node.name, Context())->EnumerateInstances(collect, false, Context());
    for (const shared_ptr<ICIMInstance>& instance : instances) {
      copier.Copy(instance, 0);
    }
  }
  fInstances += copier.Copied();
  return copier.HasAll();
}

}  // namespace qda
