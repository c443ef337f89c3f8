// The version of what made a namespace, from its product record.

#include <cstddef>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/frame/internal/Throw.h>
#include <qdacore/identity/TCIMSchemaHelper.h>
#include <qdacore/identity/internal/SingleInstance.h>
#include <qdacore/logging/internal/CoreLog.h>

namespace NZRVQDA20 {

namespace {

const char kProductClass[] = "ZRVSG_QDAProduct";

// The text of "Build" of the first instance that has one; empty when none has.
std::string FirstBuild(const TInstances& instances, const TContext& context) {
  for (const boost::shared_ptr<ICIMInstance>& instance : instances) {
    try {
      return instance->GetProperty("Build", context)->GetValue(TContext()).ToString(10);
    } catch (TQDAException&) {
      // The next one may have it.
    }
  }
  return std::string();
}

}  // namespace

std::string TCIMSchemaHelper::GetDataSourceVersion(boost::shared_ptr<ICIMNamespace> ns,
                                                   std::map<std::string, TCIMValue> context) {
  context[kContextName] = TCIMValue(kPluginNSPName);
  const TInstances instances = CollectInstances(*ns->GetClass(kProductClass, context));
  if (instances.empty()) {
    Throw(TQDAStatusCode::kQDAStatusNotFound);
  }
  // Of several the last counts; that is meant.
  return instances.back()->GetProperty("Version", context)->GetValue(TContext());
}

std::string TCIMSchemaHelper::GetDataSourceBuild(boost::shared_ptr<ICIMNamespace> ns,
                                                 std::map<std::string, TCIMValue> context) {
  boost::shared_ptr<ICIMClass> cls;
  try {
    cls = ns->GetClass(kProductClass, context);
  } catch (TQDAException& failure) {
    if (failure.GetStatus().GetStatusCode() == TQDAStatusCode::kQDAStatusNotFound) {
      return std::string();
    }
    // Any other failure is dropped on purpose: the empty pointer is met below, where the policy
    // for failed assertions decides.
  }
  try {
    return FirstBuild(CollectInstances(*cls), context);
  } catch (TQDAException&) {
    // This question tries not to fail.
    return std::string();
  }
}

std::string TCIMSchemaHelper::GetDataSourceMajorVersion(boost::shared_ptr<ICIMNamespace> ns,
                                                        std::map<std::string, TCIMValue> context) {
  const std::string version = GetDataSourceVersion(ns, context);
  const std::size_t dot = version.find('.');
  if (dot == std::string::npos) {
    // The only one of the three that logs; that is meant.
    LogAndThrow(ILogger::kLogDebug, "TCIMSchemaHelper::GetDataSourceMajorVersion - Throwing",
                TQDAStatusCode::kQDAStatusNotFound);
  }
  return version.substr(0, dot);
}

std::string TCIMSchemaHelper::GetDataSourceMinorVersion(boost::shared_ptr<ICIMNamespace> ns,
                                                        std::map<std::string, TCIMValue> context) {
  const std::string version = GetDataSourceVersion(ns, context);
  const std::size_t first = version.find('.');
  const std::size_t second = first == std::string::npos ? first : version.find('.', first + 1);
  if (second == std::string::npos) {
    Throw(TQDAStatusCode::kQDAStatusNotFound);
  }
  return version.substr(first + 1, second - first - 1);
}

std::string TCIMSchemaHelper::GetDataSourceBuildVersion(boost::shared_ptr<ICIMNamespace> ns) {
  const std::string version = GetDataSourceVersion(ns, TContext());
  const std::size_t dot = version.rfind('.');
  if (dot == std::string::npos) {
    Throw(TQDAStatusCode::kQDAStatusNotFound);
  }
  return version.substr(dot + 1);
}

}  // namespace NZRVQDA20
