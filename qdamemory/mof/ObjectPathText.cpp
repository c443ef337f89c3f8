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

// Four levels stand in sixteen backslashes, twelve in four thousand: no more than that, and no more
// than this where the library's own form, which escapes nothing, says the same.
const int kDeepestEscaped = 12;
const int kDeepestPreferred = 4;
// What the library reads of its own form.
const int kDeepestOwnForm = 256;

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
    // Before anything else a backslash stands for itself.
    if (text[at] == '\\' && at + 1 < text.size() && (text[at + 1] == '"' || text[at + 1] == '\\')) {
      ++at;
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

// Whether a class and its first key stand at `at`, or a class and nothing else.
bool BeginsClass(const std::string& text, std::size_t at) {
  const std::size_t end = text.find_first_of(".:=\"", at);
  if (!IsCIMName(text.substr(at, end - at)) || (end != std::string::npos && text[end] != '.')) {
    return false;
  }
  const std::size_t equals = end == std::string::npos ? end : text.find('=', end);
  return end == std::string::npos ||
         (equals != std::string::npos && IsCIMName(text.substr(end + 1, equals - end - 1)));
}

std::string ClassAt(const std::string& text, std::size_t at) {
  return text.substr(at, std::min(text.find('.', at), text.size()) - at);
}

// False when the text has another form.
bool Split(const std::string& text, PathParts& parts) {
  // A namespace's name may have any character, the colon itself included.
  std::size_t at = 0;
  while (!BeginsClass(text, at)) {
    const std::size_t colon = text.find(':', at);
    if (colon == std::string::npos) {
      return false;
    }
    at = colon + 1;
  }
  parts.namespaceName.assign(text, 0, at == 0 ? 0 : at - 1);
  const std::size_t dot = text.find('.', at);
  parts.className = ClassAt(text, at);
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
    Fail(Place(), Quoted(text) + " is no value of a key");
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
  return MakeScalar(type, literal, ns);
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

// Whether the library's own form has all of the reference: it knows neither labels nor keys without
// a value, reads no char16 and no class alone within a path, and rounds real numbers.
bool HasOwnForm(const TCIMReference& reference) {
  bool has = reference.GetNameSpaceName().empty() && !BindingsOf(reference).empty();
  for (const auto& binding : BindingsOf(reference)) {
    const TCIMValue& value = binding.second;
    const Type type = value.GetType();
    has = has && !value.IsNull() && type != Type::kCIMTypeChar16 && type != Type::kCIMTypeReal32 &&
          type != Type::kCIMTypeReal64 && (!value.IsReference() || HasOwnForm(value));
  }
  return has;
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

std::vector<std::string> ClassesInPath(const std::string& text) {
  std::vector<std::string> classes;
  for (std::size_t at = 0; at != std::string::npos;) {
    if (BeginsClass(text, at)) {
      classes.push_back(ClassAt(text, at));
    }
    at = text.find_first_of(":\"", at);
    at = at == std::string::npos ? at : at + 1;
  }
  return classes;
}

TCIMReference ReadObjectPath(const std::string& text, const boost::shared_ptr<ICIMNamespace>& ns) {
  PathParts parts;
  if (Split(text, parts)) {
    return Bind(parts, ns);
  }
  return TCIMReference(ns, text, Context());
}

std::string WriteObjectPath(const TCIMReference& reference) {
  const int depth = Depth(reference);
  if (depth > kDeepestPreferred && depth <= kDeepestOwnForm && HasOwnForm(reference)) {
    return reference.GetPath();
  }
  if (depth > kDeepestEscaped) {
    throw TQDAException(TQDAStatusCode::kQDAStatusNotSupported);
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
