// The whole public interface of the core library.

#ifndef QDACORE_QDACORE_H
#define QDACORE_QDACORE_H

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
#include <qdacore/cim/object/TAddToVectorCallback.h>
#include <qdacore/cim/object/TCIMCopy.h>
#include <qdacore/cim/value/TCIMArrayValueImpl.h>
#include <qdacore/cim/value/TCIMChar16.h>
#include <qdacore/cim/value/TCIMChar16Impl.h>
#include <qdacore/cim/value/TCIMChar16ValueImpl.h>
#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/cim/value/TCIMDateTimeImpl.h>
#include <qdacore/cim/value/TCIMDateTimeValueImpl.h>
#include <qdacore/cim/value/TCIMNumericValueImpl.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/cim/value/TCIMReferenceImpl.h>
#include <qdacore/cim/value/TCIMReferenceValueImpl.h>
#include <qdacore/cim/value/TCIMRoom.h>
#include <qdacore/cim/value/TCIMStringValueImpl.h>
#include <qdacore/cim/value/TCIMValue.h>
#include <qdacore/cim/value/TCIMValueImpl.h>
#include <qdacore/frame/AssertionFailed.h>
#include <qdacore/frame/TBoostAssertException.h>
#include <qdacore/frame/TQDAException.h>
#include <qdacore/frame/TQDAStatusCode.h>
#include <qdacore/frame/TRootObject.h>
#include <qdacore/identity/TCIMSchemaHelper.h>
#include <qdacore/ipmi/IIPMILan.h>
#include <qdacore/ipmi/TCommUtil.h>
#include <qdacore/logging/ILogger.h>
#include <qdacore/logging/TLogger.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdacore/plugin/INamespaceConsumer.h>
#include <qdacore/plugin/INamespaceProvider.h>
#include <qdacore/plugin/INamespaceProviderManager.h>
#include <qdacore/plugin/INamespaceSource.h>
#include <qdacore/plugin/TNamespaceProviderManager.h>

#endif
