// How this host takes a command line apart into words: the program, and its arguments.

#ifndef QDACORE_HOST_POSIX_COMMANDLINE_H
#define QDACORE_HOST_POSIX_COMMANDLINE_H

#include <string>
#include <vector>

namespace NZRVQDA20 {
namespace host {

// The words of a command line:
//
//   blanks, tabs    separate words, however many stand together
//   '...'           its inside, as it stands
//   "..."           its inside, in which \" is a quote and \\ a backslash; others stay
//   \               before a blank, a quote of either kind or a backslash: that character, as
//                   text; before anything else, a tab too, the backslash stays
//
// Quoted and bare text that touch are one word; empty quotes are an empty word. A quote that is
// not closed reaches to the end of the line. All else, line feeds too, is text: nothing is
// expanded.
std::vector<std::string> SplitCommandLine(const std::string& line);

}  // namespace host
}  // namespace NZRVQDA20

#endif
