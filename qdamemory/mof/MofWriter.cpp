// A namespace as MOF text.

#include <ostream>
#include <string>
#include <vector>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMMethodDecl.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMParameterDecl.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdacore/cim/object/ICIMQualifierDecl.h>
#include <qdacore/frame/TQDAException.h>
#include <qdamemory/Mof.h>
#include <qdamemory/StandardQualifiers.h>
#include <qdamemory/internal/Context.h>
#include <qdamemory/internal/Fail.h>
#include <qdamemory/mof/MofSyntax.h>
#include <qdamemory/mof/ValueText.h>
#include <qdamemory/mof/WritingOrder.h>

namespace NZRVQDA20 {

namespace mof {
namespace {

typedef TCIMValue::TCIMType Type;

struct Scope {
  std::int32_t bit;
  const char* word;
};

const Scope kScopes[] = {
    {kQualifierScopeClass, "class"},           {kQualifierScopeAssociation, "association"},
    {kQualifierScopeIndication, "indication"}, {kQualifierScopeProperty, "property"},
    {kQualifierScopeReference, "reference"},   {kQualifierScopeMethod, "method"},
    {kQualifierScopeParameter, "parameter"},
};

const std::int32_t kFlavors =
    kQualifierEnableOverride | kQualifierToSubclass | kQualifierTranslatable;

bool IsArray(const Type& type) { return (type & Type::kCIMTypeArrayFlag) != 0; }

Type ElementOf(const Type& type) {
  return Type(static_cast<Type::ECIMType>(type & ~Type::kCIMTypeArrayFlag));
}

std::string TypeWord(const Type& type, const boost::shared_ptr<ICIMClass>& referenced) {
  if (ElementOf(type) < Type::kCIMTypeBoolean || ElementOf(type) > Type::kCIMTypeReference) {
    Fail(TQDAStatusCode::kQDAStatusNotSupported);
  }
  if (ElementOf(type) != Type::kCIMTypeReference) {
    return ElementOf(type).ToString();
  }
  return (referenced ? referenced->GetName(TContext()) : std::string(kAnyClass)) + " REF";
}

std::string Brackets(const Type& type, unsigned int size) {
  return !IsArray(type) ? "" : size == 0 ? "[]" : "[" + std::to_string(size) + "]";
}

std::string ScopeText(std::int32_t scope) {
  if (scope == kQualifierScopeAny) {
    return "any";
  }
  std::string text;
  for (const Scope& row : kScopes) {
    if (scope & row.bit) {
      text += (text.empty() ? "" : ", ") + std::string(row.word);
    }
  }
  return text;
}

std::string FlavorText(std::int32_t flavor) {
  return std::string(flavor & kQualifierEnableOverride ? "EnableOverride" : "DisableOverride") +
         (flavor & kQualifierToSubclass ? ", ToSubclass" : ", Restricted") +
         (flavor & kQualifierTranslatable ? ", Translatable" : "");
}

// Array values of qualifiers stand in braces, all others in parentheses.
std::string QualifierText(const ICIMQualifier& qualifier) {
  const TCIMValue& value = qualifier.GetValue(TContext());
  const std::string text = ValueText(value);
  return qualifier.GetQualifierDecl(TContext())->GetName(TContext()) +
         (value.IsArray() && !value.IsNull() ? " " + text : " (" + text + ")");
}

class Writer {
 public:
  Writer(const boost::shared_ptr<ICIMNamespace>& ns, std::ostream& output)
      : fNamespace(ns), fOutput(output) {}

  void Write() {
    boost::function<bool(boost::shared_ptr<ICIMQualifierDecl>)> visit =
        [this](boost::shared_ptr<ICIMQualifierDecl> declaration) {
          WriteQualifierDecl(*declaration);
          return true;
        };
    fNamespace->EnumerateQualifierDecls(visit, TContext());
    const std::vector<boost::shared_ptr<ICIMClass> > classes = ClassesInWritingOrder(*fNamespace);
    for (const boost::shared_ptr<ICIMClass>& cls : classes) {
      WriteClass(*cls);
    }
    // Values may name any class.
    for (const boost::shared_ptr<ICIMClass>& cls : classes) {
      WriteStaticValues(*cls);
    }
    for (const boost::shared_ptr<ICIMClass>& cls : classes) {
      WriteInstances(*cls);
    }
  }

 private:
  void WriteQualifierDecl(const ICIMQualifierDecl& declaration) {
    const TCIMValue& value = declaration.GetValue(TContext());
    const std::int32_t scope = declaration.GetFirstAttribute(TContext());
    const std::int32_t flavor = declaration.GetSecondAttribute(TContext());
    if ((scope & ~kQualifierScopeAny) != 0 || (flavor & ~kFlavors) != 0) {
      Fail(TQDAStatusCode::kQDAStatusNotSupported);
    }
    fOutput << "Qualifier " << declaration.GetName(TContext()) << " : "
            << TypeWord(value.GetType(), value.GetReferencedClass())
            << Brackets(value.GetType(), value.GetMaxArraySize());
    if (!value.IsNull()) {
      fOutput << " = " << ValueText(value);
    }
    fOutput << ", Scope(" << ScopeText(scope) << "), Flavor(" << FlavorText(flavor) << ");\n";
  }

  void WriteQualifiers(const ICIMNamedElement& element, const char* indent, const char* end) {
    const char* separator = "[";
    boost::function<bool(boost::shared_ptr<ICIMQualifier>)> visit =
        [&](boost::shared_ptr<ICIMQualifier> qualifier) {
          fOutput << (separator[0] == '[' ? indent : "") << separator << QualifierText(*qualifier);
          separator = ", ";
          return true;
        };
    element.EnumerateQualifiers(visit, TContext());
    if (separator[0] != '[') {
      fOutput << "]" << end;
    }
  }

  void WriteClass(const ICIMClass& cls) {
    fOutput << "\n";
    WriteQualifiers(cls, "", "\n");
    fOutput << "class " << cls.GetName(TContext());
    if (!cls.IsRootClass(TContext())) {
      fOutput << " : " << cls.GetSuperClass(TContext())->GetName(TContext());
    }
    fOutput << " {\n";
    for (const boost::shared_ptr<ICIMPropertyDecl>& declaration : OwnPropertyDecls(cls)) {
      WriteProperty(*declaration);
    }
    boost::function<bool(boost::shared_ptr<ICIMMethodDecl>)> visit =
        [this](boost::shared_ptr<ICIMMethodDecl> method) {
          WriteMethod(*method);
          return true;
        };
    cls.EnumerateMethodDecls(visit, TContext());
    fOutput << "};\n";
  }

  void WriteProperty(const ICIMPropertyDecl& declaration) {
    WriteQualifiers(declaration, "  ", "\n");
    const TCIMValue& value = declaration.GetDefaultValue(TContext());
    fOutput << "  " << TypeWord(value.GetType(), value.GetReferencedClass()) << " "
            << declaration.GetName(TContext())
            << Brackets(value.GetType(), value.GetMaxArraySize());
    if (!value.IsNull()) {
      fOutput << " = " << ValueText(value);
    }
    fOutput << ";\n";
  }

  void WriteMethod(const ICIMMethodDecl& method) {
    if (IsArray(method.GetType(TContext()))) {
      Fail(TQDAStatusCode::kQDAStatusNotSupported);
    }
    WriteQualifiers(method, "  ", "\n");
    fOutput << "  " << TypeWord(method.GetType(TContext()), boost::shared_ptr<ICIMClass>()) << " "
            << method.GetName(TContext()) << "(";
    const char* separator = "";
    boost::function<bool(boost::shared_ptr<ICIMParameterDecl>)> visit =
        [&](boost::shared_ptr<ICIMParameterDecl> parameter) {
          const Type type = parameter->GetType(TContext());
          fOutput << separator;
          WriteQualifiers(*parameter, "", " ");
          fOutput << TypeWord(type, boost::shared_ptr<ICIMClass>()) << " "
                  << parameter->GetName(TContext()) << Brackets(type, 0);
          separator = ", ";
          return true;
        };
    method.EnumerateParameterDecls(visit, TContext());
    fOutput << ");\n";
  }

  void WriteStaticValues(const ICIMClass& cls) {
    boost::function<bool(boost::shared_ptr<ICIMProperty>)> visit =
        [&](boost::shared_ptr<ICIMProperty> property) {
          const std::string value = cls.GetName(TContext()) + "." +
                                    property->GetPropertyDecl(TContext())->GetName(TContext()) +
                                    " = " + ValueText(property->GetValue(TContext()));
          fOutput << "#pragma qda_static_value (" << StringText(value) << ")\n";
          return true;
        };
    cls.EnumerateStaticProperties(visit, TContext());
  }

  void WriteInstances(const ICIMClass& cls) {
    boost::function<bool(boost::shared_ptr<ICIMInstance>)> visit =
        [&](boost::shared_ptr<ICIMInstance> instance) {
          fOutput << "\ninstance of " << cls.GetName(TContext()) << " {\n";
          WriteValues(*instance);
          fOutput << "};\n";
          return true;
        };
    cls.EnumerateInstances(visit, false, TContext());
  }

  // What differs from what the class gives of itself.
  void WriteValues(const ICIMInstance& instance) {
    boost::function<bool(boost::shared_ptr<ICIMProperty>)> visit =
        [this](boost::shared_ptr<ICIMProperty> property) {
          const boost::shared_ptr<const ICIMPropertyDecl> declaration =
              property->GetPropertyDecl(TContext());
          const TCIMValue& value = property->GetValue(TContext());
          const TCIMValue& given = declaration->GetDefaultValue(TContext());
          if (!IsSameText(value, given)) {
            fOutput << "  " << declaration->GetName(TContext()) << " = " << ValueText(value)
                    << ";\n";
          }
          return true;
        };
    instance.EnumerateProperties(visit, TContext());
  }

  // As text, because some values, such as two characters, are equal whatever they are.
  static bool IsSameText(const TCIMValue& value, const TCIMValue& given) {
    return value.IsNull() == given.IsNull() &&
           (value.IsNull() || ValueText(value) == ValueText(given));
  }

  const boost::shared_ptr<ICIMNamespace> fNamespace;
  std::ostream& fOutput;
};

}  // namespace
}  // namespace mof

void WriteMof(const boost::shared_ptr<ICIMNamespace>& ns, std::ostream& output) {
  mof::Writer(ns, output).Write();
}

}  // namespace NZRVQDA20
