#include <qda/SnapshotFile.h>

#include <filesystem>
#include <fstream>
#include <system_error>

#include <fmt/format.h>

#include <qda/Text.h>
#include <qda/host/Paths.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/frame/TQDAException.h>
#include <qdamemory/MemoryNamespace.h>
#include <qdamemory/Mof.h>

namespace qda {

using NZRVQDA20::ICIMNamespace;
using NZRVQDA20::MofProblem;
using NZRVQDA20::TQDAException;

boost::shared_ptr<ICIMNamespace> ReadSnapshot(const std::string& file) {
  const boost::shared_ptr<ICIMNamespace> ns = NZRVQDA20::CreateMemoryNamespace(file);
  MofProblem problem;
  try {
    ReadMofFile(ns, file, &problem);
    return ns;
  } catch (const TQDAException& failure) {
    std::string place = problem.file;
    if (problem.line != 0) {
      place += fmt::format(":{}:{}", problem.line, problem.column);
    }
    Complain(
        fmt::format("snapshot \"{}\": {}: {} ({}); a snapshot is what \"qda snapshot -o FILE\" "
                    "writes",
                    file, place, problem.reason, failure.what()));
    return boost::shared_ptr<ICIMNamespace>();
  }
}

bool WriteSnapshot(const std::string& file, const std::string& text) {
  if (file == "-") {
    return PrintResult(text);
  }
  const std::string unfinished = file + ".part";
  std::error_code error;
  {
    std::ofstream output(unfinished, std::ios::binary | std::ios::trunc);
    output << text;
    output.close();
    if (!output) {
      Complain(
          fmt::format("snapshot \"{}\": it cannot be written (kQDAStatusFileSystemError); is "
                      "there a folder of that name, the right to write there, and room?",
                      file));
      std::filesystem::remove(host::ToPath(unfinished), error);
      return false;
    }
  }
  std::filesystem::rename(host::ToPath(unfinished), host::ToPath(file), error);
  if (!error) {
    return true;
  }
  Complain(fmt::format("snapshot \"{}\": it cannot be written (kQDAStatusFileSystemError): {}",
                       file, error.message()));
  std::filesystem::remove(host::ToPath(unfinished), error);
  return false;
}

}  // namespace qda
