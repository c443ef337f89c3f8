#include <plugins/machine/Schema.h>

#include <plugins/machine/NamespaceBuilder.h>
#include <plugins/machine/classes/Families.h>
#include <qdacore/cim/object/ICIMNamespace.h>

namespace machine {

boost::shared_ptr<NZRVQDA20::ICIMNamespace> BuildNamespace(const MachineFacts& facts, Scope scope) {
  NamespaceBuilder builder;
  AddFamilies(builder, facts, scope);
  return builder.Namespace();
}

}  // namespace machine
