// Random references out to text and back, with keys of every type that can be a key.

#include <cstdint>
#include <map>
#include <random>

#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdamemory/MemoryNamespace.h>
#include <qdamemory/StandardQualifiers.h>
#include <tests/cim/value/ReferenceFixture.h>

namespace {

using namespace NZRVQDA20;
using cim_test::Context;
using testing::IsEmpty;

std::string KeyName(int type) { return "Key" + std::to_string(type); }

// A class with a key of each type but char16, which has no text, in a namespace that only records.
boost::shared_ptr<ICIMNamespace> RecordingHome() {
  const boost::shared_ptr<cim_test::RecordingNamespace> ns = cim_test::RecordingNamespace::Create();
  cim_test::RecordingClass& cls = ns->Declare("All");
  for (int type = 1; type <= 15; ++type) {
    cls.With(KeyName(type), static_cast<TCIMValue::TCIMType::ECIMType>(type));
  }
  return ns;
}

// The same in one that holds instances.
boost::shared_ptr<ICIMNamespace> MemoryHome() {
  const boost::shared_ptr<ICIMNamespace> ns = CreateMemoryNamespace("root/test");
  DeclareStandardQualifiers(ns);
  const boost::shared_ptr<ICIMClass> cls =
      ns->CreateClass("All", boost::shared_ptr<ICIMClass>(), Context());
  for (int type = 1; type <= 15; ++type) {
    if (type != 12) {
      const boost::shared_ptr<ICIMPropertyDecl> key = cls->AddPropertyDecl(
          KeyName(type), TCIMValue(cim_test::TypeFromNumber(type), 0), Context());
      key->AddQualifier(ns->GetQualifierDecl("Key", Context()), TCIMValue(true), Context())
          ->Commit(Context());
      key->Commit(Context());
    }
  }
  cls->Commit(Context());
  return ns;
}

struct Home {
  const char* name;
  boost::shared_ptr<ICIMNamespace> (*create)();
};

void PrintTo(const Home& home, std::ostream* out) { *out << home.name; }

class TCIMReferenceRoundTrip : public testing::TestWithParam<Home> {
 protected:
  TCIMReferenceRoundTrip()
      : ns(GetParam().create()), cls(ns->GetClass("All", Context())), random(20240102) {}

  unsigned Below(unsigned limit) { return static_cast<unsigned>(random() % limit); }

  std::string RandomText() {
    static const char kCharacters[] = "\"\"\\\\.,=: aZ09{}\n\t\xC3\xA4\xFF";
    std::string text;
    for (unsigned count = Below(12); count > 0; --count) {
      text += kCharacters[Below(sizeof kCharacters)];  // the closing NUL is one of them
    }
    return text;
  }

  TCIMValue RandomNumber(int type) {
    const std::uint64_t bits = (std::uint64_t{random()} << 32 | random()) >> Below(64);
    switch (type) {
      case 1:
        return TCIMValue((bits & 1) != 0);
      case 2:
        return TCIMValue(static_cast<unsigned char>(bits));
      case 3:
        return TCIMValue(static_cast<signed char>(bits));
      case 4:
        return TCIMValue(static_cast<unsigned short>(bits));
      case 5:
        return TCIMValue(static_cast<short>(bits));
      case 6:
        return TCIMValue(static_cast<unsigned int>(bits));
      case 7:
        return TCIMValue(static_cast<int>(bits));
      case 8:
        return TCIMValue(static_cast<unsigned long long>(bits));
      case 9:
        return TCIMValue(static_cast<long long>(bits));
      case 10:
        // Six digits are enough for these.
        return TCIMValue(static_cast<float>(bits % 4000) / 4 - 500);
      default:
        return TCIMValue(static_cast<double>(bits % 4000) / 4 - 500);
    }
  }

  TCIMValue RandomTime() {
    if (Below(2)) {
      return TCIMValue(TCIMDateTime(Below(65536), static_cast<unsigned short>(Below(24)),
                                    static_cast<unsigned short>(Below(60)),
                                    static_cast<unsigned short>(Below(60)), Below(65536)));
    }
    return TCIMValue(TCIMDateTime(
        static_cast<unsigned short>(1971 + Below(1000)), static_cast<unsigned short>(1 + Below(12)),
        1 + Below(28), static_cast<unsigned short>(Below(24)),
        static_cast<unsigned short>(Below(60)), static_cast<unsigned short>(Below(60)),
        Below(65536), static_cast<short>(static_cast<int>(Below(1999)) - 999)));
  }

  // At least one key, for a reference inside another needs one.
  TCIMReference RandomReference(int depth) {
    TCIMReference reference(ns);
    reference.SetClass(cls);
    const int sure = 1 + static_cast<int>(Below(11));
    for (int type = 1; type <= 15; ++type) {
      if (type == 12 || (type != sure && Below(2))) {
        continue;
      }
      if (type <= 11) {
        reference.AddKeyValue(KeyName(type), RandomNumber(type));
      } else if (type == 13) {
        reference.AddKeyValue(KeyName(type), TCIMValue(RandomText()));
      } else if (type == 14) {
        reference.AddKeyValue(KeyName(type), RandomTime());
      } else if (depth > 0) {
        TCIMReference target = RandomReference(depth - 1);
        reference.AddKeyValue(KeyName(type), TCIMValue(target));
      }
    }
    return reference;
  }

  // The record of calls does not matter here, and grows.
  void ForgetCalls() {
    if (auto* const recording = dynamic_cast<cim_test::RecordingNamespace*>(ns.get())) {
      recording->TakeCalls();
    }
  }

  test_support::LogCapture log;
  const boost::shared_ptr<ICIMNamespace> ns;
  const boost::shared_ptr<ICIMClass> cls;
  std::mt19937 random;
};

INSTANTIATE_TEST_SUITE_P(Namespaces, TCIMReferenceRoundTrip,
                         testing::Values(Home{"Recording", RecordingHome},
                                         Home{"Memory", MemoryHome}),
                         [](const testing::TestParamInfo<Home>& home) {
                           return std::string(home.param.name);
                         });

TEST_P(TCIMReferenceRoundTrip, PathReadsBackAsAnEqualReference) {
  for (int round = 0; round < 2000; ++round) {
    const TCIMReference reference = RandomReference(4);
    const std::string path = reference.GetPath();
    SCOPED_TRACE(path);
    const TCIMReference back(ns, path, Context());
    ASSERT_TRUE(reference == back);
    ASSERT_EQ(path, back.GetPath());
    ASSERT_FALSE(reference < back);
    ForgetCalls();
  }
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_P(TCIMReferenceRoundTrip, DamagedPathsAreRefusedOrRead) {
  for (int round = 0; round < 4000; ++round) {
    std::string path = RandomReference(2).GetPath();
    const std::size_t at = Below(static_cast<unsigned>(path.size()));
    switch (Below(3)) {
      case 0:
        path.erase(at, 1 + Below(3));
        break;
      case 1:
        path[at] = "\"\\.,=:"[Below(6)];
        break;
      default:
        path.resize(at);
    }
    SCOPED_TRACE(path);
    const std::string status = test_support::ThrownStatus([&] {
      const TCIMReference back(ns, path, Context());
      // Whatever was read can be written, and then reads back.
      const std::string canonical = back.GetPath();
      EXPECT_TRUE(TCIMReference(ns, canonical, Context()) == back);
    });
    EXPECT_TRUE(status == "nothing" || status == "kQDAStatusInvalidReference" ||
                status == "kQDAStatusInvalidDateTime" || status == "kQDAStatusNotFound" ||
                status == "kQDAStatusTypeMismatch")
        << status;
    ForgetCalls();
  }
}

TEST(TCIMReferenceInMemory, PathResolvesToTheInstanceItNames) {
  const boost::shared_ptr<ICIMNamespace> ns = MemoryHome();
  const boost::shared_ptr<ICIMClass> cls = ns->GetClass("All", Context());
  TCIMReference first(ns);
  std::map<std::string, boost::shared_ptr<ICIMInstance>> instances;
  for (int number = 0; number < 200; ++number) {
    TCIMReference reference(ns);
    reference.SetClass(cls);
    const boost::shared_ptr<ICIMInstance> instance = cls->CreateInstance(Context());
    const auto set = [&](int type, const TCIMValue& value) {
      reference.AddKeyValue(KeyName(type), value);
      instance->SetProperty(KeyName(type), value, Context());
    };
    set(1, TCIMValue(number % 2 == 0));
    set(2, TCIMValue(static_cast<unsigned char>(number)));
    set(3, TCIMValue(static_cast<signed char>(-number / 2)));
    set(4, TCIMValue(static_cast<unsigned short>(number * 300)));
    set(5, TCIMValue(static_cast<short>(-number)));
    set(6, TCIMValue(static_cast<unsigned int>(number)));
    set(7, TCIMValue(-number));
    set(8, TCIMValue(static_cast<unsigned long long>(number)));
    set(9, TCIMValue(static_cast<long long>(-number)));
    set(10, TCIMValue(static_cast<float>(number) / 4));
    set(11, TCIMValue(static_cast<double>(-number) / 4));
    set(13, TCIMValue("a\"b\\" + std::to_string(number)));
    set(14, TCIMValue(TCIMDateTime(static_cast<unsigned>(number), 0, 0, 0, 0)));
    if (number == 0) {
      TCIMReference self(reference);
      set(15, TCIMValue(self));
      first = reference;
    } else {
      set(15, TCIMValue(first));
    }
    cls->AddInstance(instance);
    instances[reference.GetPath()] = instance;
  }
  ASSERT_EQ(200u, instances.size());
  for (const auto& entry : instances) {
    SCOPED_TRACE(entry.first);
    EXPECT_EQ(entry.second, TCIMReference(ns, entry.first, Context()).GetCIMElement(false));
    EXPECT_EQ(cls, TCIMReference(ns, entry.first, Context()).GetCIMElement(true));
  }
  std::string missing = instances.begin()->first;
  missing.replace(missing.find("a\\\"b"), 1, "x");
  EXPECT_STATUS(kQDAStatusNotFound, TCIMReference(ns, missing, Context()).GetCIMElement(false));
}

}  // namespace
