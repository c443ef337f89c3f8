// How a class is printed.

#ifndef QDA_CLASSOUTPUT_H
#define QDA_CLASSOUTPUT_H

#include <string>

#include <qda/ClassModel.h>

namespace qda {

// Sections: the class, its properties, its methods, its qualifiers; those without rows are left
// out.
std::string ClassTable(const ClassModel& model);

// One object, written as Json.h has it.
std::string ClassJson(const ClassModel& model);

}  // namespace qda

#endif
