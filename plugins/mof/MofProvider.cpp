#include <plugins/mof/MofProvider.h>

#include <plugins/mof/PathList.h>
#include <plugins/mof/host/PathSeparator.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/frame/TQDAException.h>
#include <qdacore/frame/TRootObject.h>
#include <qdacore/logging/ILogger.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdamemory/MemoryNamespace.h>
#include <qdamemory/Mof.h>

namespace mof_provider {

using NZRVQDA20::ICIMNamespace;
using NZRVQDA20::ILogger;
using NZRVQDA20::MofProblem;
using NZRVQDA20::TCIMValue;
using NZRVQDA20::TOSSpecific;
using NZRVQDA20::TQDAException;
using NZRVQDA20::TRootObject;

namespace {

// "FILE:LINE:COLUMN: REASON", without places where the file as a whole is meant.
std::string Told(const MofProblem& problem) {
  std::string place = problem.file;
  if (problem.line != 0) {
    place += ":" + std::to_string(problem.line) + ":" + std::to_string(problem.column);
  }
  return "mof: " + place + ": " + problem.reason;
}

void Read(const boost::shared_ptr<ICIMNamespace>& ns, const std::string& path) {
  MofProblem problem;
  try {
    ReadMofFile(ns, path, &problem);
  } catch (const TQDAException&) {
    if (ILogger* const log = TRootObject::GetCoreLogger()) {
      log->LogMessage(ILogger::kLogError, Told(problem));
    }
    throw;
  }
}

}  // namespace

MofProvider::MofProvider() : fName("mof") {}

const std::string& MofProvider::GetName(std::map<std::string, TCIMValue>) const { return fName; }

boost::shared_ptr<ICIMNamespace> MofProvider::GetNamespace(std::map<std::string, TCIMValue>) {
  if (!fNamespace) {
    const boost::shared_ptr<ICIMNamespace> ns = NZRVQDA20::CreateMemoryNamespace("mof");
    for (const std::string& path :
         SplitPathList(TOSSpecific::GetEnvironment("QDA_MOF_PATH"), host::PathSeparator())) {
      Read(ns, path);
    }
    fNamespace = ns;
  }
  return fNamespace;
}

}  // namespace mof_provider
