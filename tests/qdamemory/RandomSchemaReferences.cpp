// The part of RandomSchema that makes values, and first of all references.

#include <tests/qdamemory/RandomSchema.h>

namespace memory_test {

bool RandomSchema::PickTarget(const Entry& entry, int maxDepth, std::size_t& target) {
  std::vector<std::size_t> fitting;
  for (std::size_t at = 0; at < fClasses.size(); ++at) {
    const Entry& other = fClasses[at];
    // Ordinary classes are copied tree by tree in order of creation, associations after them all.
    const bool comesFirst =
        !other.isAssociation && (entry.isAssociation || other.root < entry.root);
    if (comesFirst && other.hasKeys && other.depth <= maxDepth) {
      fitting.push_back(at);
    }
  }
  if (fitting.empty()) {
    return false;
  }
  target = fitting[fRandom.Below(fitting.size())];
  return true;
}

bool RandomSchema::Derives(std::size_t cls, std::size_t from) const {
  int at = static_cast<int>(cls);
  while (at >= 0 && at != static_cast<int>(from)) {
    at = fClasses[static_cast<std::size_t>(at)].parent;
  }
  return at >= 0;
}

TCIMValue RandomSchema::NullOf(const Property& property) const {
  if (property.isArray) {
    return TCIMValue(Type(static_cast<Type::ECIMType>(property.type | Type::kCIMTypeArrayFlag)),
                     property.size);
  }
  return property.type == Type::kCIMTypeReference ? NullReferenceTo(fClasses[property.target].cls)
                                                  : Null(property.type);
}

TCIMValue RandomSchema::ValueOf(const Property& property, bool anyBelow) {
  if (property.type != Type::kCIMTypeReference) {
    return property.isArray ? fRandom.Array(property.type, property.size)
                            : fRandom.Scalar(property.type);
  }
  if (!property.isArray) {
    return ReferenceTo(property.target, anyBelow);
  }
  std::vector<TCIMValue> elements(fRandom.Below(property.size == 0 ? 4 : property.size + 1));
  for (TCIMValue& each : elements) {
    each.Set(ReferenceTo(property.target, anyBelow));
  }
  return TCIMValue(Type(property.type), property.size, elements);
}

TCIMValue RandomSchema::ReferenceTo(std::size_t cls, bool anyBelow) {
  TCIMReference reference(fNamespace);
  if (!anyBelow || fRandom.OneIn(2) || !PickPublished(cls, reference)) {
    reference = ReferenceToAnything(cls, anyBelow);
  }
  if (fPurpose == RandomFor::kMof && fRandom.OneIn(4)) {
    reference.SetNameSpaceName("root/other");
  }
  return TCIMValue(reference);
}

TCIMReference RandomSchema::ReferenceToAnything(std::size_t cls, bool anyBelow) {
  std::vector<std::size_t> fitting(1, cls);
  for (std::size_t at = cls + 1; anyBelow && at < fClasses.size(); ++at) {
    if (Derives(at, cls)) {
      fitting.push_back(at);
    }
  }
  const Entry& entry = fClasses[fitting[fRandom.Below(fitting.size())]];
  TCIMReference reference(fNamespace);
  reference.SetClassName(entry.cls->GetName(None()));
  for (const Property& property : entry.properties) {
    if (property.isKey) {
      reference.AddKeyValue(property.name, ValueOf(property, anyBelow));
    }
  }
  return reference;
}

bool RandomSchema::PickPublished(std::size_t cls, TCIMReference& reference) {
  std::vector<std::size_t> fitting;
  for (std::size_t at = 0; at < fPublished.size(); ++at) {
    if (Derives(fPublished[at].cls, cls)) {
      fitting.push_back(at);
    }
  }
  if (fitting.empty()) {
    return false;
  }
  const Published& published = fPublished[fitting[fRandom.Below(fitting.size())]];
  reference.SetClassName(fClasses[published.cls].cls->GetName(None()));
  for (const Property& property : fClasses[published.cls].properties) {
    if (property.isKey) {
      reference.AddKeyValue(property.name, memory_test::ValueOf(published.instance, property.name));
    }
  }
  return true;
}

}  // namespace memory_test
