#include <qdamemory/mof/ObjectPathText.h>

#include <algorithm>
#include <map>
#include <utility>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/frame/TQDAException.h>
#include <qdamemory/internal/CIMName.h>
#include <qdamemory/mof/MofFailure.h>
#include <qdamemory/mof/MofScanner.h>
#include <qdamemory/mof/MofValues.h>
#include <qdamemory/mof/ValueText.h>

namespace NZRVQDA20 {
namespace mof {

namespace {

typedef TCIMValue::TCIMType Type;
typedef std::map<std::string, TCIMValue> Context;

// Four levels stand in sixteen backslashes.
const int kDeepestEscaped = 4;

struct Binding {
  std::string name;
  std::string text;
  bool isQuoted;
};

struct PathParts {
  std::string namespaceName;
  std::string className;
  std::vector<Binding> bindings;
};

// Steps over a value in quotes, whose text it delivers; false when there is no closing quote.
bool TakeQuoted(const std::string& text, std::size_t& at, std::string& value) {
  for (++at; at < text.size(); ++at) {
    if (text[at] == '"') {
      ++at;
      return true;
    }
    if (text[at] == '\\' && ++at == text.size()) {
      return false;
    }
    value += text[at];
  }
  return false;
}

bool TakeBinding(const std::string& text, std::size_t& at, Binding& binding) {
  const std::size_t equals = text.find('=', at);
  if (equals == std::string::npos) {
    return false;
  }
  binding.name.assign(text, at, equals - at);
  at = equals + 1;
  binding.isQuoted = at < text.size() && text[at] == '"';
  if (binding.isQuoted) {
    return TakeQuoted(text, at, binding.text);
  }
  // A character may be the comma itself.
  std::size_t end = text.find(',', at < text.size() && text[at] == '\'' ? at + 2 : at);
  end = std::min(end, text.size());
  binding.text.assign(text, at, end - at);
  at = end;
  return true;
}

// False when the text has another form.
bool Split(const std::string& text, PathParts& parts) {
  const std::size_t head = std::min(text.find('='), text.size());
  const std::size_t colon = head == 0 ? std::string::npos : text.rfind(':', head - 1);
  std::size_t at = 0;
  if (colon != std::string::npos) {
    parts.namespaceName.assign(text, 0, colon);
    at = colon + 1;
  }
  const std::size_t dot = text.find('.', at);
  parts.className.assign(text, at, std::min(dot, text.size()) - at);
  if (!IsCIMName(parts.className)) {
    return false;
  }
  if (dot == std::string::npos) {
    return true;
  }
  at = dot;
  do {
    Binding binding;
    if (!TakeBinding(text, ++at, binding) || !IsCIMName(binding.name)) {
      return false;
    }
    parts.bindings.push_back(binding);
  } while (at < text.size() && text[at] == ',');
  return at == text.size();
}

Literal Word(const std::string& text) {
  Literal literal;
  if (EqualCIMNames(text, "null")) {
    return literal;
  }
  if (EqualCIMNames(text, "true") || EqualCIMNames(text, "false")) {
    literal.kind = Literal::kBoolean;
    literal.magnitude = EqualCIMNames(text, "true") ? 1 : 0;
    return literal;
  }
  const std::string file;
  Scanner scanner(text, file);
  const Token token = scanner.Next();
  if (token.kind != Token::kLiteral || scanner.Next().kind != Token::kEnd) {
    Fail(Place(), "\"" + text + "\" is no value of a key");
  }
  return token.literal;
}

// What stands in quotes although it is a real number's value (see ValueText.h).
bool IsOddReal(const std::string& text) { return text == "NaN" || text == "INF" || text == "-INF"; }

TCIMValue KeyValue(const Binding& binding, Type::ECIMType type,
                   const boost::shared_ptr<ICIMNamespace>& ns) {
  if (binding.isQuoted && (type == Type::kCIMTypeString || type == Type::kCIMTypeDateTime ||
                           type == Type::kCIMTypeReference || IsOddReal(binding.text))) {
    Literal literal;
    literal.kind = Literal::kString;
    literal.text = binding.text;
    return MakeScalar(type, literal, ns);
  }
  const Literal literal = Word(binding.text);
  if (literal.kind == Literal::kNull && binding.isQuoted) {
    Fail(Place(), "a key in quotes has a value");
  }
  TCIMValue value = MakeScalar(type, literal, ns);
  return value;
}

TCIMReference Bind(const PathParts& parts, const boost::shared_ptr<ICIMNamespace>& ns) {
  TCIMReference reference(ns);
  reference.SetClassName(parts.className);
  reference.SetNameSpaceName(parts.namespaceName);
  const boost::shared_ptr<ICIMClass> cls = reference.GetClass();
  for (const Binding& binding : parts.bindings) {
    const boost::shared_ptr<const ICIMPropertyDecl> declaration =
        cls->GetPropertyDecl(binding.name, Context());
    reference.AddKeyValue(declaration->GetName(Context()),
                          KeyValue(binding, declaration->GetType(Context()), ns));
  }
  return reference;
}

std::vector<std::pair<std::string, TCIMValue>> BindingsOf(const TCIMReference& reference) {
  std::vector<std::pair<std::string, TCIMValue>> bindings;
  reference.EnumerateKeyBindings([&bindings](std::pair<std::string, TCIMValue> binding) {
    bindings.push_back(binding);
    return true;
  });
  return bindings;
}

int Depth(const TCIMReference& reference) {
  int depth = 0;
  for (const auto& binding : BindingsOf(reference)) {
    if (binding.second.IsReference() && !binding.second.IsNull()) {
      depth = std::max(depth, 1 + Depth(binding.second));
    }
  }
  return depth;
}

std::string InQuotes(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') {
      quoted += '\\';
    }
    quoted += c;
  }
  return quoted + "\"";
}

std::string KeyText(const TCIMValue& value) {
  if (value.IsNull()) {
    return "NULL";
  }
  switch (value.GetType()) {
    case Type::kCIMTypeReference:
      return InQuotes(WriteObjectPath(value));
    case Type::kCIMTypeString:
      return InQuotes(static_cast<std::string>(value));
    case Type::kCIMTypeDateTime:
      return InQuotes(value.ToString());
    default:
      return ScalarText(value);
  }
}

}  // namespace

TCIMReference ReadObjectPath(const std::string& text, const boost::shared_ptr<ICIMNamespace>& ns) {
  PathParts parts;
  if (Split(text, parts)) {
    return Bind(parts, ns);
  }
  return TCIMReference(ns, text, Context());
}

std::string WriteObjectPath(const TCIMReference& reference) {
  if (Depth(reference) > kDeepestEscaped) {
    return reference.GetPath();
  }
  const std::string label = reference.GetNameSpaceName();
  std::string path = label.empty() ? "" : label + ":";
  path += reference.GetClassName();
  char separator = '.';
  for (const auto& binding : BindingsOf(reference)) {
    path += separator + binding.first + "=" + KeyText(binding.second);
    separator = ',';
  }
  return path;
}

}  // namespace mof
}  // namespace NZRVQDA20
