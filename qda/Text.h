// Text for people: what comes from firmware, files and command lines is shown without harm.

#ifndef QDA_TEXT_H
#define QDA_TEXT_H

#include <string>
#include <vector>

namespace qda {

// `text` as one line of harmless UTF-8: control characters, direction marks, line separators and
// bytes that are no UTF-8 become \x1B and the like, byte by byte.
std::string Printable(const std::string& text);

// `text` with the letters A to Z small: CIM names and those of options compare by it.
std::string Folded(std::string text);

// Lines of columns that stand under each other, two blanks apart, with no blank at the end of a
// line. The cells are made printable.
std::string Columns(const std::vector<std::vector<std::string>>& rows);

// Writes to standard output and flushes it. False when not all of it could be written.
bool Print(const std::string& text);

// The same, and says so on standard error when it could not.
bool PrintResult(const std::string& text);

// One line "qda: MESSAGE" on standard error; the message is made printable.
void Complain(const std::string& message);

}  // namespace qda

#endif
