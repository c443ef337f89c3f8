#include <qda/ClassCommand.h>

#include <memory>
#include <string>

#include <boost/shared_ptr.hpp>

#include <fmt/format.h>

#include <qda/ClassModel.h>
#include <qda/ClassOutput.h>
#include <qda/CommandOptions.h>
#include <qda/SourceNamespace.h>
#include <qda/SourceText.h>
#include <qda/Text.h>
#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/frame/TQDAException.h>

namespace qda {

namespace {

struct ClassOptions {
  SourceOptions source;
  std::string name;
};

int RunClass(const ClassOptions& options, Format format) {
  const boost::shared_ptr<NZRVQDA20::ICIMNamespace> ns = OpenNamespace(options.source);
  const boost::shared_ptr<NZRVQDA20::ICIMClass> cls =
      ns ? FindClass(*ns, options.name, options.source) : boost::shared_ptr<NZRVQDA20::ICIMClass>();
  if (!cls) {
    return kExitFailed;
  }
  ClassModel model;
  try {
    model = ReadClass(cls);
  } catch (const NZRVQDA20::TQDAException& failure) {
    Complain(fmt::format("class \"{}\"{}: {} cannot be read ({}){}", options.name,
                         OfSnapshot(options.source), ServedText(options.source), failure.what(),
                         KeptWarnings()));
    return kExitFailed;
  }
  return PrintResult(format == Format::kJson ? ClassJson(model) : ClassTable(model)) ? kExitDone
                                                                                     : kExitFailed;
}

std::function<int()> DeclareClass(CLI::App* app, RunOptions* run) {
  const auto options = std::make_shared<ClassOptions>();
  AddPositional(app, {"NAME", "The class, in any case", true}, &options->name);
  AddSource(app, &options->source);
  AddFormat(app, run);
  return [options, run] { return RunClass(*options, run->format); };
}

}  // namespace

const Command kClassCommand = {"class", "Inventory", "Tell what a class declares and inherits",
                               DeclareClass};

}  // namespace qda
