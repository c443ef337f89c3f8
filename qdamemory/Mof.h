// MOF, the text form of CIM schemas and instances (DMTF DSP0004 2.8, annex A "MOF Syntax Grammar
// Description"), read into a namespace and written from one.
//
//   MofProblem problem;
//   try {
//     ReadMofFile(ns, "schema/cim_schema.mof", &problem);
//   } catch (const TQDAException&) {
//     std::cerr << problem.file << ":" << problem.line << ":" << problem.column << ": "
//               << problem.reason << "\n";
//   }
//
// Read are #pragma include, declarations of qualifiers, classes, associations and instances, with
// all kinds of values, and aliases. Classes and instances may stand before what they refer to, as
// long as that comes somewhere, and refer to each other. Other pragmas are passed over, as the
// standard has it, but for qda_static_value (below). docs/mof.md tells what is tolerated and what
// the text form cannot hold.
//
// What is written reads back as an equal namespace: the same declarations, classes, instances and
// values in the same order. Where MOF has no word for something, this is used:
//
//   * a static property's value: #pragma qda_static_value ("CLASS.PROPERTY = VALUE")
//   * real numbers that are none: "NaN", "INF", "-INF" in quotes
//   * a key without a value in an object path: NAME=NULL
//
// Threads: as safe as the namespace.

#ifndef QDAMEMORY_MOF_H
#define QDAMEMORY_MOF_H

#include <iosfwd>
#include <string>

#include <boost/shared_ptr.hpp>

#include <qdamemory/Export.h>

namespace NZRVQDA20 {

class ICIMNamespace;

// What is wrong with a MOF text, and where.
struct MofProblem {
  std::string file;         // as it was named, by the caller or by an include
  unsigned int line = 0;    // from 1; 0 where the file as a whole is meant
  unsigned int column = 0;  // in bytes, from 1; 0 likewise
  std::string reason;       // for people, without a full stop
};

// Reads the file at `path`, and what it includes, into `ns`. An included file is looked for
// relative to the file that names it. The first problem ends the reading: it is stored in
// `*problem` (unless that is null) and its status thrown; what was committed and published by then
// stays in `ns`. Throws
//   kQDAStatusFileNotFound     the file, or one that it includes, cannot be opened
//   kQDAStatusFileSystemError  one cannot be read to its end, or an included one is no file
//   kQDAStatusInvalidFormat    no MOF, or a value that does not fit its type
//   kQDAStatusNotFound         a class, property or qualifier declaration is named and nowhere
//   kQDAStatusInvalidClass     a superclass that its subclass needs in order to be
//   kQDAStatusInvalidReference an alias of an instance without a key, or of one whose key needs
//   itself and what `ns` throws: kQDAStatusAlreadyExists for a name that is taken, and so on.
QDAMEMORY_EXPORT void ReadMofFile(const boost::shared_ptr<ICIMNamespace>& ns,
                                  const std::string& path, MofProblem* problem);

// The same for a text. `name` stands for the file in problems; includes are relative to it.
QDAMEMORY_EXPORT void ReadMofText(const boost::shared_ptr<ICIMNamespace>& ns,
                                  const std::string& text, const std::string& name,
                                  MofProblem* problem);

// Writes all of `ns`: the declarations of qualifiers, the classes (each after what it refers to),
// static values, the published instances. Whether the stream took it all is for the caller to ask.
// Throws kQDAStatusNotSupported for what no MOF text can say, such as attributes of a qualifier's
// declaration that are no scope or flavor of StandardQualifiers.h (docs/mof.md has the list), and
// what `ns` throws.
QDAMEMORY_EXPORT void WriteMof(const boost::shared_ptr<ICIMNamespace>& ns, std::ostream& output);

}  // namespace NZRVQDA20

#endif
