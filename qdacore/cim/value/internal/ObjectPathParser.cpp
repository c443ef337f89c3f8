#include <qdacore/cim/value/internal/ObjectPathParser.h>

#include <cstring>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/value/TCIMReferenceImpl.h>
#include <qdacore/frame/internal/Throw.h>
#include <qdacore/logging/internal/CoreLog.h>

namespace NZRVQDA20 {

namespace {

typedef std::map<std::string, TCIMValue> TContext;

// Every level is a recursion, here and wherever such a reference is copied or released, and the
// text may come from outside.
const int kDeepestNesting = 256;

bool IsNotFound(const TQDAException& failure) {
  return failure.GetStatus().GetStatusCode() == TQDAStatusCode::kQDAStatusNotFound;
}

}  // namespace

ObjectPathParser::ObjectPathParser(const std::string& text,
                                   const boost::weak_ptr<ICIMNamespace>& ns,
                                   const TContext& context, const ICIMNamespace* held, int depth)
    : fText(text), fNamespace(ns), fHeld(held), fContext(context), fPosition(0), fDepth(depth) {}

void ObjectPathParser::Parse(TCIMReferenceImpl& body) { ParsePath(body, false); }

void ObjectPathParser::ParsePath(TCIMReferenceImpl& body, bool nested) {
  if (nested) {
    ++fPosition;  // over the opening quote
  }
  const std::size_t dot = Find('.');
  if (dot == std::string::npos) {
    // A class and no keys. In a nested path this takes in the closing quote and fails in the
    // lookup: a nested reference must have keys.
    const std::string name = fText.substr(fPosition);
    fPosition = fText.size();
    body.SetClassName(name);
    return;
  }
  std::string name = fText.substr(fPosition, dot - fPosition);
  const std::size_t colon = name.find(':');
  if (colon != std::string::npos) {
    name.erase(0, colon + 1);
  }
  body.SetClass(LookUpClass(name));
  fPosition = dot;
  while (!AtEnd() && !(nested && fText[fPosition] == '"')) {
    ParseBinding(body, *body.fClass);
  }
}

void ObjectPathParser::ParseBinding(TCIMReferenceImpl& body, const ICIMClass& cls) {
  std::string name = ParsePropertyName();
  const boost::shared_ptr<const ICIMPropertyDecl> declaration = LookUpProperty(cls, name);

  ++fPosition;  // over the "="
  if (AtEnd() || fText[fPosition] != '"') {
    // This one message has a severity of its own, on purpose.
    LogAndThrow(ILogger::kLogDebug, "Reference missing opening '\"', path=" + fText,
                TQDAStatusCode::kQDAStatusInvalidReference);
  }
  if (declaration->GetDefaultValue(TContext()).IsReference()) {
    TCIMValue value = ParseNestedPath();
    body.AddParsedKeyValue(name, value);
  } else {
    std::string text = ReadQuotedValue();
    TCIMValue value = ParseValue(declaration->GetType(TContext()), text);
    body.AddParsedKeyValue(name, value);
  }
  ++fPosition;  // over the closing quote
}

TCIMValue ObjectPathParser::ParseNestedPath() {
  GoDeeper();
  TCIMReference target(fNamespace.lock(), fContext);
  ParsePath(*target.GetBody(), true);
  --fDepth;
  return TCIMValue(target);
}

// As the constructor of TCIMValue reads its text, but that a path within a path counts as deeper,
// also where a declaration's default does not tell that it is one.
TCIMValue ObjectPathParser::ParseValue(TCIMValue::TCIMType type, std::string& text) {
  if (type == TCIMValue::TCIMType::kCIMTypeString) {
    // Most keys are strings, and a string's text is the value as it stands.
    return TCIMValue(text);
  }
  if (type != TCIMValue::TCIMType::kCIMTypeReference) {
    return TCIMValue(type, text, boost::shared_ptr<ICIMNamespace>());
  }
  GoDeeper();
  TCIMReference target(fNamespace.lock(), TContext());
  target.GetBody()->SetPath(text, nullptr, fDepth);
  --fDepth;
  return TCIMValue(target);
}

void ObjectPathParser::GoDeeper() {
  if (++fDepth > kDeepestNesting) {
    Refuse("Reference nested too deeply, path=" + fText);
  }
}

// From the position on.
std::size_t ObjectPathParser::Find(char character) const {
  const char* const begin = fText.data();
  const void* const found = std::memchr(begin + fPosition, character, fText.size() - fPosition);
  return found ? static_cast<std::size_t>(static_cast<const char*>(found) - begin)
               : std::string::npos;
}

// Leaves the position on the "=".
std::string ObjectPathParser::ParsePropertyName() {
  if (fText[fPosition] != ',' && fText[fPosition] != '.') {
    Refuse("Reference missing '.' or ',', path=" + fText);
  }
  const std::size_t equals = Find('=');
  if (equals == std::string::npos) {
    Refuse("Reference missing property value, path=" + fText);
  }
  const std::size_t begin = fPosition + 1;
  fPosition = equals;
  return fText.substr(begin, equals - begin);
}

boost::shared_ptr<ICIMClass> ObjectPathParser::LookUpClass(const std::string& name) const {
  try {
    return fHeld ? fHeld->GetClass(name, fContext) : fNamespace.lock()->GetClass(name, fContext);
  } catch (TQDAException& failure) {
    if (!IsNotFound(failure)) {
      throw TQDAException(failure.GetStatus());
    }
  }
  Refuse("Reference specifies invalid class, path=" + fText);
}

boost::shared_ptr<const ICIMPropertyDecl> ObjectPathParser::LookUpProperty(
    const ICIMClass& cls, const std::string& name) const {
  try {
    return cls.GetPropertyDecl(name, TContext());
  } catch (TQDAException& failure) {
    if (!IsNotFound(failure)) {
      throw TQDAException(failure.GetStatus());
    }
  }
  Refuse("Reference specifies invalid property, property=" + name + ", path=" + fText);
}

// From the opening quote to the closing one, where the position is left.
std::string ObjectPathParser::ReadQuotedValue() {
  std::string value;
  for (;;) {
    // All up to the next mark stands for itself.
    const char* const begin = fText.data() + ++fPosition;
    const char* const end = fText.data() + fText.size();
    const char* mark = begin;
    while (mark < end && *mark != '"' && *mark != '\\') {
      ++mark;
    }
    fPosition = static_cast<std::size_t>(mark - fText.data());
    const bool isClosed = mark < end && *mark == '"';
    if (isClosed && value.empty()) {
      return std::string(begin, mark);
    }
    value.append(begin, mark);
    if (isClosed) {
      return value;
    }
    ++fPosition;  // over the backslash
    if (AtEnd()) {
      Refuse("Reference missing closing '\"', path=" + fText);
    }
    // Before anything else the backslash is a character like any other.
    if (fText[fPosition] != '\\' && fText[fPosition] != '"') {
      value += '\\';
    }
    value += fText[fPosition];
  }
}

void ObjectPathParser::Refuse(const std::string& reason) const {
  LogAndThrow(ILogger::kLogError, reason, TQDAStatusCode::kQDAStatusInvalidReference);
}

}  // namespace NZRVQDA20
