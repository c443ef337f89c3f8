// TCommUtil: text utilities for what comes in from outside. It has no instances.

#ifndef QDACORE_IPMI_TCOMMUTIL_H
#define QDACORE_IPMI_TCOMMUTIL_H

#include <string>

#include <qdacore/Export.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT TCommUtil {
 public:
  // Does nothing but return the object.
  TCommUtil& operator=(const TCommUtil& other);

  // Cleans one line of text:
  //   1. what follows the first line feed, and that itself, is cut off;
  //   2. blanks at the end and then at the begin are cut off; tabs are not;
  //   3. what follows the first carriage return, and that itself, is cut off. This comes behind the
  //      blanks on purpose: those in front of a carriage return stay;
  //   4. the text is empty when any character of what is left is neither letter, digit, white space
  //      nor punctuation in the C library's current locale. Bytes from 0x80 on never are.
  // Threads: as safe as the C library's locale.
  static std::string RemoveSpaces(std::string text);

 private:
  TCommUtil();
};

}  // namespace NZRVQDA20

#endif
