// In which order a snapshot takes instances, and that what it lacks is told. The target is a
// namespace that records each call.

#include <qda/Snapshot.h>

#include <algorithm>

#include <gtest/gtest.h>

#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/frame/TQDAException.h>
#include <qdamemory/MemoryNamespace.h>
#include <qdamemory/Mof.h>
#include <tests/cim/object/ModelNamespace.h>

namespace {

using namespace NZRVQDA20;
using cim_model::Calls;
using cim_model::Pointer;
using qda::Snapshot;

typedef std::vector<std::string> Lines;
typedef TCIMValue::TCIMType Type;

Pointer<ICIMNamespace> ReadText(const std::string& text) {
  const Pointer<ICIMNamespace> ns = CreateMemoryNamespace("source");
  MofProblem problem;
  try {
    ReadMofText(ns, text, "source.mof", &problem);
  } catch (const TQDAException&) {
    ADD_FAILURE() << problem.line << ":" << problem.column << ": " << problem.reason;
  }
  return ns;
}

// "CLASS KEY" of each instance that was published in the target, in order.
Lines Published(const Calls& calls, const cim_model::Namespace& target) {
  std::map<std::string, std::size_t> count;
  Lines published;
  for (const std::string& call : calls.made) {
    const std::size_t end = call.find(": AddInstance");
    if (end != std::string::npos) {
      const std::string name = call.substr(2, end - 2);
      const Pointer<cim_model::Class> cls = target.Find(name);
      published.push_back(name + " " +
                          cls->instances[count[name]++]->properties[0]->value.ToString());
    }
  }
  return published;
}

Lines Taken(const std::string& text) {
  Calls calls;
  const Pointer<cim_model::Namespace> target = cim_model::Namespace::Create(calls, "T");
  Snapshot snapshot(target);
  EXPECT_TRUE(snapshot.Add(ReadText(text), "test"));
  const Lines published = Published(calls, *target);
  EXPECT_EQ(published.size(), snapshot.InstanceCount());
  return published;
}

const char kSchema[] =
    "Qualifier Key : boolean = false, Scope(property), Flavor(DisableOverride);\n"
    "Qualifier Association : boolean = false, Scope(association), Flavor(DisableOverride);\n"
    "[Association] class Uses { [Key] string ID; };\n"
    "class Disk { [Key] string ID; Disk REF Next; Disk REF Others[]; };\n"
    "[Association] class UsesDisk : Uses { Disk REF Disk; };\n"
    "[Association] class UsesUse : UsesDisk { UsesDisk REF Use; };\n";

// The classes come in the order Uses, UsesDisk, UsesUse, Disk, and instances as the texts have
// them, for paths need not wait for what they name.
TEST(SnapshotCopy, ReferencedInstancesComeFirst) {
  EXPECT_EQ((Lines{"Disk c", "Disk b", "Disk a", "UsesDisk u", "UsesDisk v", "UsesUse w"}),
            Taken(std::string(kSchema) +
                  "instance of UsesDisk { ID = \"u\"; Disk = \"Disk.ID=\\\"a\\\"\"; };\n"
                  "instance of UsesDisk { ID = \"v\"; Disk = \"Disk.ID=\\\"c\\\"\"; };\n"
                  "instance of UsesUse { ID = \"w\"; Use = \"UsesDisk.ID=\\\"v\\\"\"; };\n"
                  "instance of Disk { ID = \"a\"; Next = \"Disk.ID=\\\"b\\\"\"; };\n"
                  "instance of Disk { ID = \"b\"; Next = \"Disk.ID=\\\"c\\\"\"; };\n"
                  "instance of Disk { ID = \"c\"; };\n"));
}

TEST(SnapshotCopy, ReferencesInArraysCountToo) {
  EXPECT_EQ((Lines{"Disk c", "Disk b", "Disk a"}),
            Taken(std::string(kSchema) +
                  "instance of Disk { ID = \"a\"; Others = {NULL, \"Disk.ID=\\\"c\\\"\", "
                  "\"Disk.ID=\\\"b\\\"\"}; };\n"
                  "instance of Disk { ID = \"b\"; };\n"
                  "instance of Disk { ID = \"c\"; };\n"));
}

TEST(SnapshotCopy, CirclesAndReferencesToNothingEnd) {
  EXPECT_EQ((Lines{"Disk c", "Disk b", "Disk a", "Disk self"}),
            Taken(std::string(kSchema) +
                  "instance of Disk { ID = \"a\"; Next = \"Disk.ID=\\\"b\\\"\"; };\n"
                  "instance of Disk { ID = \"b\"; Next = \"Disk.ID=\\\"c\\\"\"; };\n"
                  "instance of Disk { ID = \"c\"; Next = \"Disk.ID=\\\"a\\\"\"; Others = "
                  "{\"Disk.ID=\\\"none\\\"\", \"Disk\"}; };\n"
                  "instance of Disk { ID = \"self\"; Next = \"Disk.ID=\\\"self\\\"\"; };\n"));
}

// A path has six digits of a real number.
TEST(SnapshotCopy, KeysThatReadTheSameInAPathAreTwo) {
  Calls calls;
  const Pointer<cim_model::Namespace> target = cim_model::Namespace::Create(calls, "T");
  Snapshot snapshot(target);
  EXPECT_TRUE(snapshot.Add(
      ReadText(std::string(kSchema) + "class Point { [Key] real64 X; [Key] real32 Y; };\n"
                                      "instance of Point { X = 0.12345678; Y = 1.0; };\n"
                                      "instance of Point { X = 0.12345679; Y = 1.0; };\n"
                                      "instance of Point { X = 0.12345679; Y = 1.0000001; };\n"),
      "test"));
  EXPECT_EQ(3u, snapshot.InstanceCount());
}

// Deeper than any stack.
TEST(SnapshotCopy, ChainOfReferencesMayHaveAnyLength) {
  const int length = 5000;
  std::string text = kSchema;
  Lines expected;
  for (int n = 0; n < length; ++n) {
    const std::string id = std::to_string(n);
    text += "instance of Disk { ID = \"" + id + "\"; Next = \"Disk.ID=\\\"" +
            std::to_string(n + 1) + "\\\"\"; };\n";
    expected.push_back("Disk " + id);
  }
  std::reverse(expected.begin(), expected.end());
  EXPECT_EQ(expected, Taken(text));
}

struct FailingSource : testing::Test {
  FailingSource() : source(cim_model::Namespace::Create(calls, "S")) {
    const TCIMValue noText(Type(Type::kCIMTypeString), 0);
    const Pointer<cim_model::QualifierDecl> key = source->DeclareQualifier("Key", TCIMValue(false));
    cim_model::Class& disk = source->Declare("Disk");
    disk.Declare("ID", noText).Put(key, TCIMValue(true));
    TCIMValue toDisk(Type(Type::kCIMTypeReference), 0);
    toDisk.SetReferencedClass(source->Find("Disk"));
    disk.Declare("Next", toDisk);
    for (const char* id : {"a", "b", "c"}) {
      disk.PutInstance().Put("ID", TCIMValue(id));
      source->byPath[std::string("Disk.ID=\"") + id + "\""] = disk.instances.back();
    }
    TCIMReference next(source, "Disk.ID=\"c\"", cim_model::Context());
    disk.instances[0]->Put("Next", TCIMValue(next));
  }

  Calls calls;
  Pointer<cim_model::Namespace> source;
};

// Whatever fails, once: it is thrown, or what is missing is told.
TEST_F(FailingSource, NothingIsMissingWithoutAWord) {
  for (std::size_t n = 1;; ++n) {
    const Pointer<ICIMNamespace> target = CreateMemoryNamespace("target");
    Snapshot snapshot(target);
    calls.made.clear();
    calls.failAt = n;
    testing::internal::CaptureStderr();
    bool hasAll = false;
    try {
      hasAll = snapshot.Add(source, "failing");
    } catch (const TQDAException&) {
    }
    const std::string told = testing::internal::GetCapturedStderr();
    const bool isOver = calls.made.size() < n;
    SCOPED_TRACE(isOver ? "no failure" : calls.made[n - 1]);
    if (hasAll) {
      EXPECT_EQ(3u, snapshot.InstanceCount());
      EXPECT_EQ("", told);
    }
    if (isOver) {
      EXPECT_TRUE(hasAll);
      EXPECT_LT(100u, n);
      return;
    }
  }
}

// One property that cannot be read costs its instance only.
TEST_F(FailingSource, OthersAreTakenAllTheSame) {
  Snapshot all(CreateMemoryNamespace("all"));
  all.Add(source, "sound");
  const Lines sound = calls.made;
  std::size_t seen = 0;
  for (std::size_t n = 1; n <= sound.size(); ++n) {
    if (sound[n - 1].find("#1: EnumerateProperties") == std::string::npos) {
      continue;
    }
    ++seen;
    Snapshot snapshot(CreateMemoryNamespace("target"));
    calls.made.clear();
    calls.failAt = n;
    testing::internal::CaptureStderr();
    const bool hasAll = snapshot.Add(source, "failing");
    const std::string told = testing::internal::GetCapturedStderr();
    // The first time it is only asked for what it refers to.
    EXPECT_EQ(seen == 1, hasAll);
    EXPECT_EQ(seen == 1 ? 3u : 2u, snapshot.InstanceCount());
    EXPECT_EQ(seen == 1 ? ""
                        : "qda: provider \"failing\": Disk.ID=\"a\" is left out "
                          "(kQDAStatusConnectionFailed)\n",
              told);
  }
  EXPECT_EQ(2u, seen);
}

// What the first one left behind does not keep the second one out.
TEST_F(FailingSource, NextProviderIsTakenAllTheSame) {
  Snapshot snapshot;
  calls.made.clear();
  source->Declare("Late");
  Snapshot(CreateMemoryNamespace("all")).Add(source, "sound");
  std::size_t late = 0;
  while (calls.made[late].find("S/Late: EnumerateQualifiers") == std::string::npos) {
    ++late;
  }
  calls.made.clear();
  calls.failAt = late + 1;
  EXPECT_THROW(snapshot.Add(source, "failing"), TQDAException);
  calls.failAt = 0;
  EXPECT_TRUE(snapshot.Add(ReadText(std::string(kSchema) + "instance of Disk { ID = \"a\"; };\n"),
                           "sound"));
  EXPECT_EQ(1u, snapshot.InstanceCount());
}

}  // namespace
