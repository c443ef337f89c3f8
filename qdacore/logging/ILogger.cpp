#include <qdacore/logging/ILogger.h>

namespace NZRVQDA20 {

ILogger::~ILogger() {}

}  // namespace NZRVQDA20
