// One reading: the files, the parser and the builder brought together.

#include <cstdio>
#include <filesystem>
#include <list>
#include <memory>

#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/frame/TQDAException.h>
#include <qdamemory/Mof.h>
#include <qdamemory/mof/MofFailure.h>
#include <qdamemory/mof/MofParser.h>
#include <qdamemory/mof/NamespaceBuilder.h>

namespace NZRVQDA20 {

namespace mof {
namespace {

// Files that include one another in a circle end here, and those that include each other many
// times.
const int kDeepestInclude = 64;
const int kMostIncludes = 10000;

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

// The text of a file. Throws Failure at `place`, which is the file itself or what includes it.
std::string ReadFile(const std::string& path, const Place& place) {
  const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path.c_str(), "rb"));
  if (!file) {
    Fail(place, "file \"" + path + "\" cannot be opened", TQDAStatusCode::kQDAStatusFileNotFound);
  }
  std::string text;
  char buffer[65536];
  std::size_t count;
  while ((count = std::fread(buffer, 1, sizeof buffer, file.get())) != 0) {
    text.append(buffer, count);
  }
  if (std::ferror(file.get())) {
    Fail(place, "file \"" + path + "\" cannot be read", TQDAStatusCode::kQDAStatusFileSystemError);
  }
  return text;
}

bool IsNoFile(const std::string& path) {
  try {
    const std::filesystem::file_status status = std::filesystem::status(path);
    return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
  } catch (const std::filesystem::filesystem_error&) {
    // Not to be asked about; also bytes that are no text to the standard library, which names of
    // files on Windows may have. Whether it can be opened is seen next.
    return false;
  }
}

// A text from elsewhere may name a pipe or a device, which would never end.
void CheckIsFile(const std::string& path, const Place& place) {
  if (IsNoFile(path)) {
    Fail(place, "\"" + path + "\" is no file that can be included",
         TQDAStatusCode::kQDAStatusFileSystemError);
  }
}

// Both separators count, on every host: the texts are carried between them.
std::string BesideFile(const std::string& file, std::string name) {
  for (char& c : name) {
    c = c == '\\' ? '/' : c;
  }
  const bool isAbsolute = name[0] == '/' || (name.size() > 1 && name[1] == ':');
  const std::size_t separator = file.find_last_of("/\\");
  if (isAbsolute || separator == std::string::npos) {
    return name;
  }
  return file.substr(0, separator + 1) + name;
}

class Reading final : public Handler {
 public:
  explicit Reading(const boost::shared_ptr<ICIMNamespace>& ns) : fBuilder(ns) {}

  void ReadPath(const std::string& path, const Place* includedAt) {
    const std::string& name = Keep(path);
    if (includedAt) {
      CheckIsFile(path, *includedAt);
    }
    const std::string text = ReadFile(path, includedAt ? *includedAt : Place{&name, 0, 0});
    Read(text, name);
  }

  void ReadNamed(const std::string& text, const std::string& name) { Read(text, Keep(name)); }

  void Finish() { fBuilder.Finish(); }

  void OnInclude(const Place& place, const std::string& path) override {
    if (path.empty()) {
      Fail(place, "the name of the file to include is missing");
    }
    if (++fDepth > kDeepestInclude) {
      Fail(place, "files include one another more than 64 levels deep");
    }
    if (++fIncludes > kMostIncludes) {
      Fail(place, "more than 10000 files are included");
    }
    ReadPath(BesideFile(*place.file, path), &place);
    --fDepth;
  }
  void OnQualifier(QualifierDeclaration& declaration) override { fBuilder.Add(declaration); }
  void OnClass(ClassDeclaration& declaration) override { fBuilder.Add(declaration); }
  void OnInstance(InstanceDeclaration& declaration) override { fBuilder.Add(declaration); }
  void OnStaticValue(StaticValue& value) override { fBuilder.Add(value); }

 private:
  // Names stay as long as the reading: places point at them.
  const std::string& Keep(const std::string& name) {
    fNames.push_back(name);
    return fNames.back();
  }

  void Read(const std::string& text, const std::string& name) { Parser(text, name, *this).Parse(); }

  std::list<std::string> fNames;
  NamespaceBuilder fBuilder;
  int fDepth = 0;
  int fIncludes = 0;
};

template <class Call>
void Run(const boost::shared_ptr<ICIMNamespace>& ns, const std::string& name, MofProblem* problem,
         Call read) {
  Reading reading(ns);
  try {
    read(reading);
    reading.Finish();
  } catch (const Failure& failure) {
    if (problem) {
      *problem = {failure.place.file ? *failure.place.file : std::string(), failure.place.line,
                  failure.place.column, failure.reason};
    }
    throw TQDAException(failure.status);
  } catch (const TQDAException& failure) {
    if (problem) {
      *problem = {name, 0, 0, std::string("the namespace fails: ") + failure.what()};
    }
    throw;
  }
}

}  // namespace
}  // namespace mof

void ReadMofFile(const boost::shared_ptr<ICIMNamespace>& ns, const std::string& path,
                 MofProblem* problem) {
  mof::Run(ns, path, problem, [&](mof::Reading& reading) { reading.ReadPath(path, nullptr); });
}

void ReadMofText(const boost::shared_ptr<ICIMNamespace>& ns, const std::string& text,
                 const std::string& name, MofProblem* problem) {
  mof::Run(ns, name, problem, [&](mof::Reading& reading) { reading.ReadNamed(text, name); });
}

}  // namespace NZRVQDA20
