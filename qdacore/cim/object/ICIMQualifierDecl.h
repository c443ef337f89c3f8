// ICIMQualifierDecl: the declaration of a qualifier. See ICIMElement.h.

#ifndef QDACORE_CIM_OBJECT_ICIMQUALIFIERDECL_H
#define QDACORE_CIM_OBJECT_ICIMQUALIFIERDECL_H

#include <cstdint>
#include <map>
#include <string>

#include <qdacore/Export.h>
#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT ICIMQualifierDecl {
 public:
  virtual ~ICIMQualifierDecl();
  virtual void Reserved2();

  // Finishes a declaration made by ICIMNamespace::CreateQualifierDecl.
  virtual void Commit(std::map<std::string, TCIMValue> context) = 0;
  virtual void Reserved4();

  virtual const std::string& GetName(std::map<std::string, TCIMValue> context) const = 0;
  virtual void Reserved6();
  virtual void Reserved7();
  virtual void Reserved8();

  // What CreateQualifierDecl takes.
  virtual const TCIMValue& GetValue(std::map<std::string, TCIMValue> context) const = 0;
  virtual void Reserved10();

  // Handed on unchanged, like the second.
  virtual std::int32_t GetFirstAttribute(std::map<std::string, TCIMValue> context) const = 0;
  virtual void Reserved12();
  virtual void Reserved13();

  virtual std::int32_t GetSecondAttribute(std::map<std::string, TCIMValue> context) const = 0;
};

}  // namespace NZRVQDA20

#endif
