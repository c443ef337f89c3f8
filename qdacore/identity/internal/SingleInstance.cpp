#include <qdacore/identity/internal/SingleInstance.h>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/object/TAddToVectorCallback.h>
#include <qdacore/frame/internal/Throw.h>
#include <qdacore/identity/TCIMSchemaHelper.h>

namespace NZRVQDA20 {

TContext PluginContext() {
  TContext context;
  context[TCIMSchemaHelper::kContextName] = TCIMValue(TCIMSchemaHelper::kPluginNSPName);
  return context;
}

TInstances CollectInstances(const ICIMClass& cls) {
  TInstances instances;
  boost::function<bool(boost::shared_ptr<ICIMInstance>)> collect =
      TAddToVectorCallback<ICIMInstance>(&instances);
  cls.EnumerateInstances(collect, true, TContext());
  return instances;
}

TCIMValue PropertyOfSingleInstance(const boost::shared_ptr<ICIMNamespace>& ns,
                                   const std::string& className, const std::string& propertyName) {
  const TContext context = PluginContext();
  const TInstances instances = CollectInstances(*ns->GetClass(className, context));
  if (instances.size() != 1) {
    Throw(TQDAStatusCode::kQDAStatusNotFound);
  }
  return instances[0]->GetProperty(propertyName, context)->GetValue(TContext());
}

std::string FirstPropertyText(const boost::shared_ptr<ICIMNamespace>& ns,
                              const std::string& className, const std::string& propertyName,
                              bool (*accepts)(const std::string& text)) {
  try {
    const TContext context = PluginContext();
    const TInstances instances = CollectInstances(*ns->GetClass(className, context));
    for (const boost::shared_ptr<ICIMInstance>& instance : instances) {
      try {
        const std::string text = instance->GetProperty(propertyName, context)->ToString();
        if (accepts(text)) {
          return text;
        }
      } catch (TQDAException&) {
        // This instance cannot tell; the next one may.
      }
    }
  } catch (TQDAException&) {
    // Every failure reads the same.
  }
  return "Unknown";
}

}  // namespace NZRVQDA20
