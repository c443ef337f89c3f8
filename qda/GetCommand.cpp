#include <qda/GetCommand.h>

#include <memory>
#include <string>

#include <boost/shared_ptr.hpp>

#include <fmt/format.h>

#include <qda/ClassModel.h>
#include <qda/ClassOutput.h>
#include <qda/CommandOptions.h>
#include <qda/InstanceOutput.h>
#include <qda/InstancePath.h>
#include <qda/Json.h>
#include <qda/SourceNamespace.h>
#include <qda/SourceText.h>
#include <qda/Text.h>
#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/frame/TQDAException.h>

namespace qda {

using boost::shared_ptr;
using namespace NZRVQDA20;

namespace {

struct GetOptions {
  SourceOptions source;
  std::string path;
};

// The class that the text of a path begins with.
std::string ClassPart(const std::string& path) {
  const std::string name = path.substr(0, path.find('.'));
  const std::size_t colon = path.size() > name.size() ? name.find(':') : std::string::npos;
  return colon == std::string::npos ? name : name.substr(colon + 1);
}

bool HasClass(const ICIMNamespace& ns, const std::string& name) {
  try {
    return static_cast<bool>(ns.GetClass(name, std::map<std::string, TCIMValue>()));
  } catch (const TQDAException&) {
    return false;
  }
}

// Says why nothing has that path, and what to try.
void ExplainPath(const ICIMNamespace& ns, const GetOptions& options, const TQDAException& failure) {
  const std::string asked = "path \"" + options.path + "\"" + OfSnapshot(options.source);
  const std::string from = FromOption(options.source);
  const std::string why = KeptWarnings();
  const std::string cls = ClassPart(options.path);
  if (!HasClass(ns, cls)) {
    Complain(fmt::format("{}: there is no class \"{}\" ({}){}; see \"qda classes{}\"", asked, cls,
                         failure.what(), NearClasses(ns, cls), from));
    return;
  }
  const auto status = failure.GetStatus().GetStatusCode();
  const char* const found = status == TQDAStatusCode::kQDAStatusNotFound
                                ? "there is no such instance"
                                : "it names nothing";
  Complain(
      fmt::format("{}: {} ({}){}; a path reads Class.Key=\"value\",Other=\"value\" with all "
                  "the keys of the class, see \"qda instances --deep {}{}\"",
                  asked, found, failure.what(), why, cls, from));
}

// An empty pointer after a message.
shared_ptr<ICIMElement> Resolve(const shared_ptr<ICIMNamespace>& ns, const GetOptions& options) {
  try {
    const TCIMReference reference(ns, options.path, std::map<std::string, TCIMValue>());
    const shared_ptr<ICIMElement> element = reference.GetCIMElement(false);
    if (element) {
      return element;
    }
    throw TQDAException(TQDAStatusCode::kQDAStatusNotFound);
  } catch (const TQDAException& failure) {
    ExplainPath(*ns, options, failure);
  }
  return shared_ptr<ICIMElement>();
}

bool PrintInstance(const shared_ptr<ICIMNamespace>& ns, const ICIMInstance& instance,
                   const SourceOptions& source, Format format) {
  unsigned int unread = 0;
  const InstancePath path = PathFinder(ns).PathOf(instance);
  const bool isPrinted =
      PrintResult(format == Format::kJson ? JsonText(InstanceJson(path, instance, &unread))
                                          : InstanceTable(path, instance, &unread));
  if (unread > 0) {
    Complain(
        fmt::format("path \"{}\"{}: {} of the values cannot be read; their statuses stand in "
                    "their places",
                    path.path, OfSnapshot(source), unread));
  }
  return isPrinted && unread == 0;
}

bool PrintClass(const shared_ptr<ICIMClass>& cls, Format format) {
  const ClassModel model = ReadClass(cls);
  return PrintResult(format == Format::kJson ? ClassJson(model) : ClassTable(model));
}

int RunGet(const GetOptions& options, Format format) {
  const shared_ptr<ICIMNamespace> ns = OpenNamespace(options.source);
  const shared_ptr<ICIMElement> element = ns ? Resolve(ns, options) : shared_ptr<ICIMElement>();
  if (!element) {
    return kExitFailed;
  }
  try {
    const shared_ptr<ICIMInstance> instance = boost::dynamic_pointer_cast<ICIMInstance>(element);
    const shared_ptr<ICIMClass> cls = boost::dynamic_pointer_cast<ICIMClass>(element);
    if (instance) {
      return PrintInstance(ns, *instance, options.source, format) ? kExitDone : kExitFailed;
    }
    if (cls) {
      return PrintClass(cls, format) ? kExitDone : kExitFailed;
    }
    throw TQDAException(TQDAStatusCode::kQDAStatusNotSupported);
  } catch (const TQDAException& failure) {
    Complain(fmt::format("path \"{}\"{}: {} cannot be read ({}){}", options.path,
                         OfSnapshot(options.source), ServedText(options.source), failure.what(),
                         KeptWarnings()));
    return kExitFailed;
  }
}

std::function<int()> DeclareGet(CLI::App* app, RunOptions* run) {
  const auto options = std::make_shared<GetOptions>();
  AddPositional(app, {"PATH", "As \"qda instances\" prints it, or the name of\na class", true},
                &options->path);
  AddSource(app, &options->source);
  AddFormat(app, run);
  return [options, run] { return RunGet(*options, run->format); };
}

}  // namespace

const Command kGetCommand = {"get", "Inventory", "Tell what an object path names", DeclareGet};

}  // namespace qda
