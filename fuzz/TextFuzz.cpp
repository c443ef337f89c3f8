#include "TextFuzz.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/frame/TQDAException.h>
#include <qdamemory/MemoryNamespace.h>
#include <qdamemory/Mof.h>
#include <qdamemory/StandardQualifiers.h>

namespace fuzz_text {

using namespace NZRVQDA20;

namespace {

typedef std::map<std::string, TCIMValue> TContext;
typedef TCIMValue::TCIMType TType;

void Require(bool holds, const char* promise) {
  if (!holds) {
    std::fprintf(stderr, "broken: %s\n", promise);
    std::abort();
  }
}

void AddKey(ICIMNamespace& ns, ICIMClass& cls, const char* name, const TCIMValue& value) {
  const boost::shared_ptr<ICIMPropertyDecl> declaration =
      cls.AddPropertyDecl(name, value, TContext());
  declaration->AddQualifier(ns.GetQualifierDecl("Key", TContext()), TCIMValue(true), TContext())
      ->Commit(TContext());
  declaration->Commit(TContext());
}

// "C" with a key of each scalar type, named after the type, and "R", which may name itself.
boost::shared_ptr<ICIMNamespace> MakeNamespace() {
  const boost::shared_ptr<ICIMNamespace> ns = CreateMemoryNamespace("fuzz");
  DeclareStandardQualifiers(ns);
  const boost::shared_ptr<ICIMClass> cls =
      ns->CreateClass("C", boost::shared_ptr<ICIMClass>(), TContext());
  for (int number = TType::kCIMTypeBoolean; number <= TType::kCIMTypeDateTime; ++number) {
    const TType type(static_cast<TType::ECIMType>(number));
    AddKey(*ns, *cls, type.ToString().c_str(), TCIMValue(type, 0));
  }
  cls->Commit(TContext());
  const boost::shared_ptr<ICIMClass> referrer =
      ns->CreateClass("R", boost::shared_ptr<ICIMClass>(), TContext());
  for (const char* name : {"one", "two"}) {
    TCIMValue any(TType(TType::kCIMTypeReference), 0);
    any.SetReferencedClass(cls);
    AddKey(*ns, *referrer, name, any);
  }
  referrer->Commit(TContext());
  return ns;
}

// A reference within a path whose text ends before its closing quote may name a class alone; such
// a path is written with the quote, and cannot be read back.
bool HoldsBareClass(const TCIMReference& reference, bool nested) {
  bool found = false;
  bool hasKeys = false;
  const boost::function<bool(std::pair<std::string, TCIMValue>)> visit =
      [&](const std::pair<std::string, TCIMValue>& binding) {
        hasKeys = true;
        found = found || (binding.second.IsReference() && HoldsBareClass(binding.second, true));
        return true;
      };
  reference.EnumerateKeyBindings(visit);
  return found || (nested && !hasKeys);
}

bool HasInclude(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  return text.find("include") != std::string::npos;
}

std::string InSortedLines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream input(text);
  for (std::string line; std::getline(input, line);) {
    lines.push_back(line);
  }
  std::sort(lines.begin(), lines.end());
  std::string sorted;
  for (const std::string& line : lines) {
    sorted += line + "\n";
  }
  return sorted;
}

std::string Written(const boost::shared_ptr<ICIMNamespace>& ns) {
  std::ostringstream output;
  WriteMof(ns, output);
  return output.str();
}

}  // namespace

void FuzzDateTime(const std::uint8_t* data, std::size_t size) {
  TCIMDateTime value;
  try {
    value.Set(std::string(reinterpret_cast<const char*>(data), size));
  } catch (const TQDAException&) {
    return;  // Refused, which is fine.
  }
  // Nothing from here on may be.
  const std::string text = value.ToString();
  const TCIMDateTime again(text);
  Require(again.ToString() == text, "a printed date-time prints the same again");
  Require(again.IsInterval() == value.IsInterval(), "a printed date-time keeps its kind");
  static_cast<void>(value.ToUIString());
  try {
    Require(again == value, "a printed date-time reads back to an equal one");
    static_cast<void>(value - again);
  } catch (const TQDAException&) {
    // A valid timestamp may lie outside the range in which it can be counted.
    Require(!value.IsInterval(), "intervals can always be compared");
  }
}

void FuzzObjectPath(const std::uint8_t* data, std::size_t size) {
  static const boost::shared_ptr<ICIMNamespace> ns = MakeNamespace();
  std::string text;
  try {
    const TCIMReference value(ns, std::string(reinterpret_cast<const char*>(data), size),
                              TContext());
    text = value.GetPath();
    if (HoldsBareClass(value, false)) {
      return;
    }
  } catch (const TQDAException&) {
    return;
  }
  const TCIMReference again(ns, text, TContext());
  Require(again.GetPath() == text, "a printed path prints the same again");
}

void FuzzMof(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  if (HasInclude(text)) {
    return;
  }
  const boost::shared_ptr<ICIMNamespace> ns = CreateMemoryNamespace("fuzz");
  MofProblem problem;
  try {
    ReadMofText(ns, text, "fuzz.mof", &problem);
  } catch (const TQDAException&) {
    Require(problem.line > 0 && problem.column > 0 && !problem.reason.empty(),
            "a problem has a place and a reason");
  }
  // What was made before a problem is as good as what has none.
  const std::string written = Written(ns);
  const boost::shared_ptr<ICIMNamespace> again = CreateMemoryNamespace("again");
  ReadMofText(again, written, "again.mof", nullptr);
  const std::string rewritten = Written(again);
  // Classes that refer to each other in a circle have no order that must be kept.
  Require(rewritten == written || InSortedLines(rewritten) == InSortedLines(written),
          "written MOF reads back and is written the same");
}

}  // namespace fuzz_text
