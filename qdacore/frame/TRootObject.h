// TRootObject: where a caller finds the process-wide services of the library.
//
// It owns nothing and has no state; its accessors are static. What a host does,
// in this order:
//   1. loads the library: constants exist, services do not;
//   2. calls TLogger::Initialize, before anything that logs;
//   3. gives the logger a file and a threshold, if it likes;
//   4. uses the rest. The registry comes into being at its first request.
// Each accessor is defined beside the service that it hands out.

#ifndef QDACORE_FRAME_TROOTOBJECT_H
#define QDACORE_FRAME_TROOTOBJECT_H

#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>

namespace NZRVQDA20 {

class IIPMILan;
class ILogger;
class INamespaceProviderManager;

class QDACORE_EXPORT TRootObject {
 public:
  // Does nothing but return the object.
  TRootObject& operator=(const TRootObject& other);

  // The core logger, or null before TLogger::Initialize: it is not made here.
  // Not owned by the caller; a later Initialize replaces it.
  static ILogger* GetCoreLogger();

  // The IPMI client, or null before IIPMILan::Initialize: it is not made here. Not owned by the
  // caller.
  static IIPMILan* GetipmiLanIns();

  // The registry of namespace providers, made at the first request. Shares
  // ownership with the library. The first request must come from one thread.
  static boost::shared_ptr<INamespaceProviderManager> GetNamespaceProviderManager();
};

}  // namespace NZRVQDA20

#endif
