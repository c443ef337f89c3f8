#include <qda/InstancesCommand.h>

#include <memory>
#include <string>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <fmt/format.h>

#include <qda/ClassModel.h>
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
#include <qdacore/frame/TQDAException.h>

namespace qda {

using boost::shared_ptr;
using namespace NZRVQDA20;

namespace {

typedef std::map<std::string, TCIMValue> Context;

const std::size_t kChunkBytes = 65536;

struct InstancesOptions {
  SourceOptions source;
  std::string className;
  bool deep = false;
};

// Prints instances one by one: a class may have more of them than fit in memory as text.
class InstanceList {
 public:
  InstanceList(const shared_ptr<ICIMNamespace>& ns, const std::string& className, bool deep,
               Format format)
      : fPaths(ns), fClassName(className), fDeep(deep), fFormat(format) {}

  void Begin() {
    if (fFormat == Format::kJson) {
      nlohmann::ordered_json head;
      head["class"] = fClassName;
      head["deep"] = fDeep;
      fText = JsonText(head);
      // Its end comes last.
      fText.erase(fText.rfind("\n}"));
      fText += ",\n  \"instances\": [";
    }
  }

  // False when the output can no longer be written.
  bool Add(const ICIMInstance& instance) {
    const InstancePath path = fPaths.PathOf(instance);
    if (fFormat == Format::kJson) {
      AddJson(InstanceJson(path, instance, &fUnread));
    } else {
      fText += (fCount == 0 ? "" : "\n") + InstanceTable(path, instance, &fUnread);
    }
    ++fCount;
    return fText.size() < kChunkBytes || Flush();
  }

  bool End() {
    if (fFormat == Format::kJson) {
      fText += fCount == 0 ? "]\n}\n" : "\n  ]\n}\n";
    } else if (fCount == 0) {
      fText += fmt::format("{} has no instances{}\n", Printable(fClassName),
                           fDeep ? "" : "; --deep takes in those of its subclasses");
    }
    return Flush();
  }

  unsigned int Unread() const { return fUnread; }

 private:
  void AddJson(const nlohmann::ordered_json& instance) {
    std::string text = JsonText(instance);
    text.pop_back();
    fText += fCount == 0 ? "\n    " : ",\n    ";
    // No line feed stands in a string of it: those are escaped.
    for (const char character : text) {
      fText += character;
      if (character == '\n') {
        fText += "    ";
      }
    }
  }

  bool Flush() {
    fIsWritten = fIsWritten && PrintResult(fText);
    fText.clear();
    return fIsWritten;
  }

  PathFinder fPaths;
  const std::string fClassName;
  const bool fDeep;
  const Format fFormat;
  std::string fText;
  std::size_t fCount = 0;
  unsigned int fUnread = 0;
  bool fIsWritten = true;
};

int RunInstances(const InstancesOptions& options, Format format) {
  const shared_ptr<ICIMNamespace> ns = OpenNamespace(options.source);
  const shared_ptr<ICIMClass> cls =
      ns ? FindClass(*ns, options.className, options.source) : shared_ptr<ICIMClass>();
  if (!cls) {
    return kExitFailed;
  }
  bool isRead = true;
  InstanceList list(ns, cls->GetName(Context()), options.deep, format);
  list.Begin();
  try {
    boost::function<bool(shared_ptr<ICIMInstance>)> add = [&list](shared_ptr<ICIMInstance> each) {
      return !each || list.Add(*each);
    };
    cls->EnumerateInstances(add, options.deep, Context());
  } catch (const TQDAException& failure) {
    isRead = false;
    Complain(fmt::format("class \"{}\"{}: its instances cannot be read to the end ({}){}",
                         options.className, OfSnapshot(options.source), failure.what(),
                         KeptWarnings()));
  }
  const bool isPrinted = list.End();
  if (list.Unread() > 0) {
    Complain(
        fmt::format("class \"{}\"{}: {} of the values cannot be read; their statuses stand in "
                    "their places",
                    options.className, OfSnapshot(options.source), list.Unread()));
  }
  return isRead && isPrinted && list.Unread() == 0 ? kExitDone : kExitFailed;
}

std::function<int()> DeclareInstances(CLI::App* app, RunOptions* run) {
  const auto options = std::make_shared<InstancesOptions>();
  AddPositional(app, {"CLASS", "The class, in any case", true}, &options->className);
  AddFlag(app, "--deep", "Those of its subclasses too", "Source", &options->deep);
  AddSource(app, &options->source);
  AddFormat(app, run);
  return [options, run] { return RunInstances(*options, run->format); };
}

}  // namespace

const Command kInstancesCommand = {
    "instances", "Inventory", "List the instances of a class, with all they say", DeclareInstances};

}  // namespace qda
