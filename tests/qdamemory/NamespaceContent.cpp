#include <tests/qdamemory/NamespaceContent.h>

#include <cstdio>

#include <qdacore/cim/object/TAddToVectorCallback.h>

namespace memory_test {

namespace {

template <class T>
std::string Digits(const char* format, T number) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, format, number);
  return buffer;
}

std::string DescribeReference(const TCIMReference& reference) {
  std::string text = reference.GetNameSpaceName() + ":" + reference.GetClassName();
  reference.EnumerateKeyBindings([&text](std::pair<std::string, TCIMValue> binding) {
    text += " <" + binding.first + "=" + DescribeValue(binding.second) + ">";
    return true;
  });
  return text;
}

std::string DescribeScalar(const TCIMValue& value) {
  switch (value.GetType()) {
    // All digits, so that nothing is lost in the comparison.
    case Type::kCIMTypeReal32:
      return Digits("%a", static_cast<double>(static_cast<float>(value)));
    case Type::kCIMTypeReal64:
      return Digits("%a", static_cast<double>(value));
    case Type::kCIMTypeReference:
      return DescribeReference(value);
    default:
      return value.ToString();
  }
}

void AddQualifiers(const ICIMNamedElement& element, const std::string& of, Names& lines) {
  boost::function<bool(boost::shared_ptr<ICIMQualifier>)> visit =
      [&](boost::shared_ptr<ICIMQualifier> qualifier) {
        lines.push_back(of + " [" + qualifier->GetQualifierDecl(None())->GetName(None()) + " " +
                        DescribeValue(qualifier->GetValue(None())) + "]");
        return true;
      };
  element.EnumerateQualifiers(visit, None());
}

void AddMethod(const ICIMMethodDecl& method, Names& lines) {
  const std::string name = "method " + method.GetName(None());
  lines.push_back(name + " " + std::to_string(method.GetType(None())));
  AddQualifiers(method, name, lines);
  boost::function<bool(boost::shared_ptr<ICIMParameterDecl>)> visit =
      [&](boost::shared_ptr<ICIMParameterDecl> parameter) {
        const std::string of = name + " " + parameter->GetName(None());
        lines.push_back(of + " " + std::to_string(parameter->GetType(None())));
        AddQualifiers(*parameter, of, lines);
        return true;
      };
  method.EnumerateParameterDecls(visit, None());
}

Names LinesOf(const ICIMClass& cls) {
  Names lines;
  lines.push_back(cls.IsRootClass(None()) ? "root"
                                          : "under " + cls.GetSuperClass(None())->GetName(None()));
  lines.push_back(std::string(cls.IsAssociation(None()) ? "association" : "no association") +
                  (cls.IsAbstract(None()) ? ", abstract" : ""));
  AddQualifiers(cls, "class", lines);
  boost::function<bool(boost::shared_ptr<ICIMPropertyDecl>)> visitProperty =
      [&](boost::shared_ptr<ICIMPropertyDecl> declaration) {
        const std::string of = "property " + declaration->GetName(None());
        lines.push_back(of + " " + DescribeValue(declaration->GetDefaultValue(None())));
        AddQualifiers(*declaration, of, lines);
        return true;
      };
  cls.EnumeratePropertyDecls(visitProperty, None());
  boost::function<bool(boost::shared_ptr<ICIMProperty>)> visitStatic =
      [&](boost::shared_ptr<ICIMProperty> property) {
        lines.push_back("static " + property->GetPropertyDecl(None())->GetName(None()) + " " +
                        DescribeValue(property->GetValue(None())));
        return true;
      };
  cls.EnumerateStaticProperties(visitStatic, None());
  boost::function<bool(boost::shared_ptr<ICIMMethodDecl>)> visitMethod =
      [&](boost::shared_ptr<ICIMMethodDecl> method) {
        AddMethod(*method, lines);
        return true;
      };
  cls.EnumerateMethodDecls(visitMethod, None());
  return lines;
}

Names InstanceTexts(const ICIMClass& cls) {
  Names texts;
  boost::function<bool(boost::shared_ptr<ICIMInstance>)> visit =
      [&](boost::shared_ptr<ICIMInstance> instance) {
        std::string text;
        boost::function<bool(boost::shared_ptr<ICIMProperty>)> property =
            [&text](boost::shared_ptr<ICIMProperty> each) {
              text += each->GetPropertyDecl(None())->GetName(None()) + "=" +
                      DescribeValue(each->GetValue(None())) + "; ";
              return true;
            };
        instance->EnumerateProperties(property, None());
        texts.push_back(text);
        return true;
      };
  cls.EnumerateInstances(visit, false, None());
  return texts;
}

void ExpectSameNames(const std::map<std::string, Names>& expected,
                     const std::map<std::string, Names>& actual, const char* what) {
  for (const auto& entry : expected) {
    const auto found = actual.find(entry.first);
    if (found == actual.end()) {
      ADD_FAILURE() << entry.first << " is missing";
    } else if (found->second != entry.second) {
      EXPECT_EQ(entry.second, found->second) << what << " of " << entry.first;
    }
  }
  EXPECT_EQ(expected.size(), actual.size()) << what;
}

}  // namespace

std::string DescribeValue(const TCIMValue& value) {
  std::string text = std::to_string(value.GetType());
  if (value.IsArray()) {
    text += "[" + std::to_string(value.GetMaxArraySize()) + "]";
  }
  const Class referenced = value.GetReferencedClass();
  if (referenced) {
    text += " to " + referenced->GetName(None());
  }
  if (value.IsNull()) {
    return text + " null";
  }
  if (!value.IsArray()) {
    return text + " " + DescribeScalar(value);
  }
  for (const TCIMValue& element : static_cast<std::vector<TCIMValue>&>(value)) {
    text += " {" + DescribeValue(element) + "}";
  }
  return text;
}

NamespaceContent ContentOf(const Namespace& ns) {
  NamespaceContent content;
  boost::function<bool(boost::shared_ptr<ICIMQualifierDecl>)> visit =
      [&](boost::shared_ptr<ICIMQualifierDecl> declaration) {
        content.qualifiers.push_back(declaration->GetName(None()) + " " +
                                     std::to_string(declaration->GetFirstAttribute(None())) + " " +
                                     std::to_string(declaration->GetSecondAttribute(None())) + " " +
                                     DescribeValue(declaration->GetValue(None())));
        return true;
      };
  ns->EnumerateQualifierDecls(visit, None());
  boost::function<bool(Class)> visitClass = [&](Class cls) {
    content.classOrder.push_back(cls->GetName(None()));
    content.classes[cls->GetName(None())] = LinesOf(*cls);
    const Names instances = InstanceTexts(*cls);
    if (!instances.empty()) {
      content.instances[cls->GetName(None())] = instances;
    }
    return true;
  };
  boost::function<bool(Class)> visitRoot = [&](Class root) {
    visitClass(root);
    root->EnumerateSubClasses(visitClass, true, None());
    return true;
  };
  ns->EnumerateClasses(visitRoot, None());
  return content;
}

void ExpectSameSchema(const Namespace& expected, const Namespace& actual) {
  const NamespaceContent left = ContentOf(expected);
  const NamespaceContent right = ContentOf(actual);
  EXPECT_EQ(left.qualifiers, right.qualifiers);
  ExpectSameNames(left.classes, right.classes, "the lines");
}

void ExpectSameOrder(const Namespace& expected, const Namespace& actual) {
  EXPECT_EQ(ContentOf(expected).classOrder, ContentOf(actual).classOrder);
}

void ExpectSameInstances(const Namespace& expected, const Namespace& actual) {
  ExpectSameNames(ContentOf(expected).instances, ContentOf(actual).instances, "the instances");
}

}  // namespace memory_test
