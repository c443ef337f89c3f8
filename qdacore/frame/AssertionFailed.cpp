#include <qdacore/frame/AssertionFailed.h>

#include <cstdlib>
#include <ostream>
#include <sstream>
#include <string>

#include <qdacore/frame/TBoostAssertException.h>
#include <qdacore/frame/internal/StandardError.h>
#include <qdacore/frame/internal/Throw.h>

namespace {

using namespace NZRVQDA20;

std::string AssertionMessage(char const* expr, char const* function, char const* file, long line) {
  std::ostringstream message;
  message << "Boost assertion failure! " << file << ":" << line << " [" << expr
          << "] func = " << function;
  return message.str();
}

}  // namespace

namespace boost {

void assertion_failed(char const* expr, char const* function, char const* file, long line) {
  const char* setting = std::getenv("QDA_BOOST_ASSERT");
  const std::string policy = setting ? setting : "throwqda";
  const std::string message = AssertionMessage(expr, function, file, line);

  if (policy == "throwqda") {
    Throw(TQDAStatusCode::kQDAStatusFail);
  }
  if (policy == "throwboost") {
    throw TBoostAssertException(message);
  }
  if (policy == "trap") {
    // Nothing is forced here, in spite of the notice: returning lets the failed
    // site make its own fault. Meant so.
    StandardError() << std::endl << message << std::endl << std::endl;
    StandardError() << "Forcing segmentation fault." << std::endl << std::endl;
    return;
  }
  if (policy == "exit") {
    StandardError() << std::endl << message << std::endl;
    std::exit(1);
  }
  StandardError() << "Invalid setting for QDA_BOOST_ASSERT '" << policy
                  << "'. Valid values are {throwqda, throwboost, trap, exit}." << std::endl;
  Throw(TQDAStatusCode::kQDAStatusFail);
}

}  // namespace boost
