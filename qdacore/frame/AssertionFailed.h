// What a failed BOOST_ASSERT does, chosen by whoever runs the program.
//
// The library, and everybody who uses it, is compiled with
// BOOST_ENABLE_ASSERT_HANDLER, so that a failed assertion inside Boost's headers
// (nearly always "px != 0", a null boost::shared_ptr dereferenced) calls the
// function below instead of aborting. It reads the environment variable
// QDA_BOOST_ASSERT afresh each time:
//
//   throwqda    throws TQDAException with kQDAStatusFail; also when it is unset
//   throwboost  throws TBoostAssertException with the message
//   trap        prints the message and a notice to standard error and returns
//   exit        prints the message to standard error and ends with exit code 1
//
// Any other value, the empty one included, is complained about on standard
// error and then counts as "throwqda". Nothing of this reaches the core log.

#ifndef QDACORE_FRAME_ASSERTIONFAILED_H
#define QDACORE_FRAME_ASSERTIONFAILED_H

#include <qdacore/Export.h>

namespace boost {

// Boost's handler contract: <boost/assert.hpp> declares the same function.
// `expr`, `function`, `file` and `line` tell the failed site. Returns only under
// the policy "trap". Any thread that may read the environment.
QDACORE_EXPORT void assertion_failed(char const* expr, char const* function, char const* file,
                                     long line);

}  // namespace boost

#endif
