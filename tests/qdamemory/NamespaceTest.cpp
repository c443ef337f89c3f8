// The operations of ICIMNamespace that deal with classes, and names in general.

#include <cstddef>

#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {
namespace {

TEST(MemoryNamespace, IsEmptyAtFirst) {
  const Namespace ns = CreateMemoryNamespace("root/cimv2");
  EXPECT_THAT(RootsOf(ns), IsEmpty());
  EXPECT_THAT(QualifierDeclsOf(ns), IsEmpty());
}

TEST(MemoryNamespace, KeepsItsLabel) {
  EXPECT_EQ("root/cimv2", GetMemoryNamespaceName(*CreateMemoryNamespace("root/cimv2")));
  EXPECT_EQ("", GetMemoryNamespaceName(*CreateMemoryNamespace("")));
}

class ForeignNamespace : public ICIMNamespace {
 public:
  Class CreateClass(const std::string&, Class, Context) override { return Class(); }
  Class GetClass(const std::string&, Context) const override { return Class(); }
  void EnumerateClasses(boost::function<bool(Class)>&, Context) const override {}
  boost::shared_ptr<ICIMQualifierDecl> CreateQualifierDecl(const std::string&, const TCIMValue&,
                                                           std::int32_t, std::int32_t,
                                                           Context) override {
    return boost::shared_ptr<ICIMQualifierDecl>();
  }
  boost::shared_ptr<ICIMQualifierDecl> GetQualifierDecl(const std::string&,
                                                        Context) const override {
    return boost::shared_ptr<ICIMQualifierDecl>();
  }
  void EnumerateQualifierDecls(boost::function<bool(boost::shared_ptr<ICIMQualifierDecl>)>&,
                               Context) const override {}
  Instance GetInstance(const TCIMReference&, Context) const override { return Instance(); }
};

TEST(MemoryNamespace, LabelOfAnotherImplementationIsEmpty) {
  EXPECT_EQ("", GetMemoryNamespaceName(ForeignNamespace()));
}

TEST(MemoryNamespace, FindsAClassWithoutCaseAndKeepsItsSpelling) {
  const Namespace ns = MakeNamespace();
  const Class disk = Make(ns, "CIM_DiskDrive");
  EXPECT_EQ(disk, ns->GetClass("CIM_DiskDrive", None()));
  EXPECT_EQ(disk, ns->GetClass("cim_diskdrive", None()));
  EXPECT_EQ(disk, ns->GetClass("CIM_DISKDRIVE", None()));
  EXPECT_EQ("CIM_DiskDrive", ns->GetClass("cim_DISKdrive", None())->GetName(None()));
}

TEST(MemoryNamespace, CaseIsThatOfAsciiLettersOnly) {
  const Namespace ns = MakeNamespace();
  const Class lower = Make(ns,
                           "Gr\xc3\xb6\xc3\x9f"
                           "e");
  const Class upper = Make(ns,
                           "Gr\xc3\x96\xc3\x9f"
                           "e");
  EXPECT_NE(lower, upper);
  EXPECT_EQ(lower, ns->GetClass("gR\xc3\xb6\xc3\x9f"
                                "E",
                                None()));
  // Characters whose codes differ in the bit that tells the case of letters.
  Make(ns, "A_");
  EXPECT_STATUS(kQDAStatusNotFound, ns->GetClass("A\x7f", None()));
}

TEST(MemoryNamespace, UnknownClassIsNotFound) {
  const Namespace ns = MakeNamespace();
  Make(ns, "CIM_DiskDrive");
  for (const char* name : {"CIM_Disk", "CIM_DiskDrives", "", "CIM_DiskDrivf", "x"}) {
    EXPECT_STATUS(kQDAStatusNotFound, ns->GetClass(name, None())) << name;
  }
}

TEST(MemoryNamespace, TakenNameAlreadyExists) {
  const Namespace ns = MakeNamespace();
  const Class first = Make(ns, "CIM_DiskDrive");
  EXPECT_STATUS(kQDAStatusAlreadyExists, Open(ns, "CIM_DiskDrive"));
  EXPECT_STATUS(kQDAStatusAlreadyExists, Open(ns, "cim_diskDRIVE"));
  EXPECT_STATUS(kQDAStatusAlreadyExists, Open(ns, "cim_diskDRIVE", first));
  EXPECT_THAT(RootsOf(ns), ElementsAre("CIM_DiskDrive"));
}

struct NameRow {
  const char* what;
  std::string name;
  bool isValid;
};

const NameRow kNames[] = {
    {"one letter", "a", true},
    {"one underscore", "_", true},
    {"digits behind", "A1234567890", true},
    {"all letters at the ends", "azAZ_09azAZ_09azAZ_09", true},
    {"beyond ASCII", "\xc3\xa4", true},
    {"beyond ASCII, long", "Properties_\xc3\xa4\xc3\xb6", true},
    {"exactly eight", "Name_of8", true},
    {"nothing", "", false},
    {"digit in front", "1A", false},
    {"digit in front, long", "1ABCDEFGHIJK", false},
    {"blank", "A B", false},
    {"point", "A.B", false},
    {"colon", "ns:Class", false},
    {"hyphen in a long name", "CIM_Disk-Drive", false},
    {"hyphen in the first eight", "A-B_CDEFGHIJKLMNOPQRS", false},
    {"wrong at the very end", "CIM_DiskDrive!", false},
    {"below the digits", "ABCDEFG/", false},
    {"above the digits", "ABCDEFG:", false},
    {"below the letters", "ABCDEFG@", false},
    {"above the letters", "ABCDEFG[", false},
    {"below the small letters", "ABCDEFG`", false},
    {"above the small letters", "ABCDEFG{", false},
    {"NUL", std::string("ABCDEFGH\0I", 10), false},
    {"NUL, short", std::string("A\0", 2), false},
    {"quote", "A\"", false},
};

TEST(MemoryNamespace, OnlyCimIdentifiersAreNames) {
  for (const NameRow& row : kNames) {
    const Namespace ns = MakeNamespace();
    const Class cls = Open(ns, "Cls");
    const boost::shared_ptr<ICIMMethodDecl> method =
        cls->AddMethodDecl("Method", Type::kCIMTypeUint32, None());
    const std::string expected = row.isValid ? "nothing" : "kQDAStatusInvalidCIMName";
    using test_support::ThrownStatus;
    EXPECT_EQ(expected, ThrownStatus([&] { Open(ns, row.name); })) << row.what;
    EXPECT_EQ(expected, ThrownStatus([&] { Add(cls, row.name, TCIMValue(1)); })) << row.what;
    EXPECT_EQ(expected,
              ThrownStatus([&] { cls->AddMethodDecl(row.name, Type::kCIMTypeUint32, None()); }))
        << row.what;
    EXPECT_EQ(expected, ThrownStatus([&] {
                method->AddParameterDecl(row.name, Type::kCIMTypeUint32, None());
              }))
        << row.what;
    EXPECT_EQ(expected, ThrownStatus([&] {
                ns->CreateQualifierDecl(row.name, TCIMValue(true), 0, 0, None());
              }))
        << row.what;
  }
}

bool MayStandInAName(unsigned char c, bool isFirst) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c >= 0x80 ||
         (!isFirst && c >= '0' && c <= '9');
}

// Names are looked at some bytes at a time, so every length has its own way.
TEST(MemoryNamespace, EveryByteCountsAtEveryPlaceOfANameOfEveryLength) {
  for (std::size_t size = 1; size <= 26; ++size) {
    const Namespace ns = MakeNamespace();
    for (std::size_t at = 0; at < size; ++at) {
      const Class cls = Open(ns, "Cls" + std::to_string(at));
      for (int byte = 0; byte < 256; ++byte) {
        std::string name(size, 'n');
        name[at] = static_cast<char>(byte);
        // A small letter comes after its capital, and is no other.
        const char* expected = "nothing";
        if (!MayStandInAName(static_cast<unsigned char>(byte), at == 0)) {
          expected = "kQDAStatusInvalidCIMName";
        } else if (byte >= 'a' && byte <= 'z') {
          expected = "kQDAStatusAlreadyExists";
        }
        EXPECT_EQ(expected, test_support::ThrownStatus([&] { Add(cls, name, TCIMValue(1)); }))
            << size << ", byte " << byte << " at " << at;
      }
    }
  }
}

TEST(MemoryNamespace, RootClassesComeInOrderOfCreation) {
  const Namespace ns = MakeNamespace();
  const Class zebra = Make(ns, "Zebra");
  Make(ns, "Foal", zebra);
  Make(ns, "Ant");
  Make(ns, "Mole");
  EXPECT_THAT(RootsOf(ns), ElementsAre("Zebra", "Ant", "Mole"));
}

TEST(MemoryNamespace, EnumerationStopsWhereItIsTold) {
  const Namespace ns = MakeNamespace();
  Make(ns, "A");
  Make(ns, "B");
  Make(ns, "C");
  Names seen;
  boost::function<bool(Class)> visit = [&seen](Class cls) {
    seen.push_back(cls->GetName(None()));
    return seen.size() < 2;
  };
  ns->EnumerateClasses(visit, None());
  EXPECT_THAT(seen, ElementsAre("A", "B"));
}

TEST(MemoryNamespace, WhatAVisitorThrowsPassesThrough) {
  const Namespace ns = MakeNamespace();
  Make(ns, "A");
  boost::function<bool(Class)> visit = [](Class) -> bool { throw 7; };
  EXPECT_THROW(ns->EnumerateClasses(visit, None()), int);
}

TEST(MemoryNamespace, ClassesMadeDuringAnEnumerationAreNotPresented) {
  const Namespace ns = MakeNamespace();
  Make(ns, "A");
  Make(ns, "B");
  Names seen;
  boost::function<bool(Class)> visit = [&](Class cls) {
    seen.push_back(cls->GetName(None()));
    Make(ns, "New" + cls->GetName(None()));
    return true;
  };
  ns->EnumerateClasses(visit, None());
  EXPECT_THAT(seen, ElementsAre("A", "B"));
  EXPECT_THAT(RootsOf(ns), ElementsAre("A", "B", "NewA", "NewB"));
}

TEST(MemoryNamespace, ManyStandSideBySide) {
  std::vector<Namespace> all;
  for (int i = 0; i < 20; ++i) {
    all.push_back(MakeNamespace());
    const Class cls = MakeKeyed(all.back(), "Thing");
    for (int k = 0; k <= i; ++k) {
      Publish(cls, "ID", TCIMValue(std::to_string(k)));
    }
  }
  for (std::size_t i = 0; i < all.size(); ++i) {
    EXPECT_EQ(i + 1, InstancesOf(all[i]->GetClass("thing", None()), false).size());
    EXPECT_EQ(all[i], all[i]->GetClass("Thing", None())->GetNamespace(None()));
  }
  EXPECT_FALSE(Resolve(all[3], "Thing.ID=\"4\""));
  EXPECT_TRUE(Resolve(all[4], "Thing.ID=\"4\""));
}

TEST(MemoryNamespace, FindsEachOfManyClasses) {
  const Namespace ns = MakeNamespace();
  std::vector<Class> all;
  for (int i = 0; i < 3000; ++i) {
    all.push_back(Make(ns, "CIM_Class" + std::to_string(i)));
  }
  for (int i = 0; i < 3000; ++i) {
    ASSERT_EQ(all[i], ns->GetClass("cim_CLASS" + std::to_string(i), None()));
  }
  EXPECT_STATUS(kQDAStatusNotFound, ns->GetClass("CIM_Class3000", None()));
  EXPECT_STATUS(kQDAStatusAlreadyExists, Open(ns, "CIM_class2999"));
}

TEST(MemoryNamespace, RowsThatAreNotCalledAreNotImplemented) {
  const Namespace ns = MakeNamespace();
  const Class cls = MakeKeyed(ns, "Cls");
  const Instance instance = Publish(cls, "ID", TCIMValue("a"));
  EXPECT_STATUS(kQDAStatusNotImplemented, ns->Reserved2());
  EXPECT_STATUS(kQDAStatusNotImplemented, ns->Reserved12());
  EXPECT_STATUS(kQDAStatusNotImplemented, cls->Reserved4());
  EXPECT_STATUS(kQDAStatusNotImplemented, cls->ReservedElement5());
  EXPECT_STATUS(kQDAStatusNotImplemented, instance->Reserved9());
}

}  // namespace
}  // namespace memory_test
