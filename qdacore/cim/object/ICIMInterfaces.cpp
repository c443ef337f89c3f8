// The out-of-line operations of the CIM object interfaces: destructors, which anchor each
// interface's table and type in this library, and the reserved places.

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMElement.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMMethodDecl.h>
#include <qdacore/cim/object/ICIMNamedElement.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMParameterDecl.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdacore/cim/object/ICIMQualifierDecl.h>

#include <qdacore/frame/internal/Throw.h>

namespace NZRVQDA20 {

namespace {

[[noreturn]] void NotImplemented() { Throw(TQDAStatusCode::kQDAStatusNotImplemented); }

}  // namespace

ICIMClass::~ICIMClass() {}
void ICIMClass::Reserved2() { NotImplemented(); }
void ICIMClass::Reserved4() { NotImplemented(); }
void ICIMClass::Reserved5() { NotImplemented(); }
void ICIMClass::Reserved13() { NotImplemented(); }
void ICIMClass::Reserved14() { NotImplemented(); }
void ICIMClass::Reserved15() { NotImplemented(); }
void ICIMClass::Reserved16() { NotImplemented(); }
void ICIMClass::Reserved20() { NotImplemented(); }
void ICIMClass::Reserved26() { NotImplemented(); }
void ICIMClass::Reserved28() { NotImplemented(); }
void ICIMClass::Reserved29() { NotImplemented(); }
void ICIMClass::Reserved30() { NotImplemented(); }
void ICIMClass::Reserved31() { NotImplemented(); }
void ICIMClass::Reserved32() { NotImplemented(); }
void ICIMClass::Reserved33() { NotImplemented(); }
void ICIMClass::Reserved34() { NotImplemented(); }
void ICIMClass::Reserved35() { NotImplemented(); }

ICIMElement::~ICIMElement() {}

ICIMInstance::~ICIMInstance() {}
void ICIMInstance::Reserved2() { NotImplemented(); }
void ICIMInstance::Reserved3() { NotImplemented(); }
void ICIMInstance::Reserved4() { NotImplemented(); }
void ICIMInstance::Reserved5() { NotImplemented(); }
void ICIMInstance::Reserved6() { NotImplemented(); }
void ICIMInstance::Reserved7() { NotImplemented(); }
void ICIMInstance::Reserved9() { NotImplemented(); }
void ICIMInstance::Reserved10() { NotImplemented(); }

ICIMMethodDecl::~ICIMMethodDecl() {}
void ICIMMethodDecl::Reserved8() { NotImplemented(); }
void ICIMMethodDecl::Reserved9() { NotImplemented(); }
void ICIMMethodDecl::Reserved11() { NotImplemented(); }
void ICIMMethodDecl::Reserved14() { NotImplemented(); }

ICIMNamedElement::~ICIMNamedElement() {}
void ICIMNamedElement::ReservedElement2() { NotImplemented(); }
void ICIMNamedElement::ReservedElement3() { NotImplemented(); }
void ICIMNamedElement::ReservedElement5() { NotImplemented(); }

ICIMNamespace::~ICIMNamespace() {}
void ICIMNamespace::Reserved2() { NotImplemented(); }
void ICIMNamespace::Reserved3() { NotImplemented(); }
void ICIMNamespace::Reserved4() { NotImplemented(); }
void ICIMNamespace::Reserved8() { NotImplemented(); }
void ICIMNamespace::Reserved12() { NotImplemented(); }

ICIMParameterDecl::~ICIMParameterDecl() {}
void ICIMParameterDecl::Reserved8() { NotImplemented(); }
void ICIMParameterDecl::Reserved11() { NotImplemented(); }

ICIMProperty::~ICIMProperty() {}
void ICIMProperty::Reserved2() { NotImplemented(); }
void ICIMProperty::Reserved3() { NotImplemented(); }
void ICIMProperty::Reserved4() { NotImplemented(); }
void ICIMProperty::Reserved6() { NotImplemented(); }
void ICIMProperty::Reserved7() { NotImplemented(); }
void ICIMProperty::Reserved9() { NotImplemented(); }
void ICIMProperty::Reserved10() { NotImplemented(); }
void ICIMProperty::Reserved11() { NotImplemented(); }
void ICIMProperty::Reserved12() { NotImplemented(); }
void ICIMProperty::Reserved13() { NotImplemented(); }
void ICIMProperty::Reserved14() { NotImplemented(); }
void ICIMProperty::Reserved15() { NotImplemented(); }

ICIMPropertyDecl::~ICIMPropertyDecl() {}
void ICIMPropertyDecl::Reserved8() { NotImplemented(); }
void ICIMPropertyDecl::Reserved10() { NotImplemented(); }
void ICIMPropertyDecl::Reserved12() { NotImplemented(); }
void ICIMPropertyDecl::Reserved14() { NotImplemented(); }

ICIMQualifier::~ICIMQualifier() {}
void ICIMQualifier::Reserved2() { NotImplemented(); }
void ICIMQualifier::Reserved4() { NotImplemented(); }
void ICIMQualifier::Reserved5() { NotImplemented(); }
void ICIMQualifier::Reserved6() { NotImplemented(); }
void ICIMQualifier::Reserved7() { NotImplemented(); }
void ICIMQualifier::Reserved8() { NotImplemented(); }

ICIMQualifierDecl::~ICIMQualifierDecl() {}
void ICIMQualifierDecl::Reserved2() { NotImplemented(); }
void ICIMQualifierDecl::Reserved4() { NotImplemented(); }
void ICIMQualifierDecl::Reserved6() { NotImplemented(); }
void ICIMQualifierDecl::Reserved7() { NotImplemented(); }
void ICIMQualifierDecl::Reserved8() { NotImplemented(); }
void ICIMQualifierDecl::Reserved10() { NotImplemented(); }
void ICIMQualifierDecl::Reserved12() { NotImplemented(); }
void ICIMQualifierDecl::Reserved13() { NotImplemented(); }

}  // namespace NZRVQDA20
