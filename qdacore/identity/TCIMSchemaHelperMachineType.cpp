// The machine type and model, cut out of the product name.

#include <cstddef>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/frame/internal/Throw.h>
#include <qdacore/identity/TCIMSchemaHelper.h>
#include <qdacore/identity/internal/SingleInstance.h>
#include <qdacore/logging/internal/CoreLog.h>

namespace NZRVQDA20 {

namespace {

const std::size_t kTypeLength = 4;
const std::size_t kMTMLength = 7;
const char kUnknownModel[] = "xxx";

// A whole product name that has its code at a fixed place. The characters that are not named
// here may be anything.
struct FixedShape {
  std::size_t length;
  const char* beginning;
  std::size_t closingAt;
  char closing;
  std::size_t codeAt;
};

const FixedShape kFixedShapes[] = {
    {27, "ZRV Tserver k7265-[", 26, ']', 19},
    {26, "ZRV Tserver k410-[", 25, ']', 18},
    {28, "ZRV Tserver k7310- ", 27, '-', 19},
};

// As isalnum in the classic locale, whatever locale the host has set.
bool IsAlphanumeric(char character) {
  return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
         (character >= 'a' && character <= 'z');
}

bool IsAlphanumericOrSpace(char character) { return IsAlphanumeric(character) || character == ' '; }

// What the character behind the end of a string reads as: its terminator.
char At(const std::string& text, std::size_t position) {
  return position < text.size() ? text[position] : '\0';
}

bool Fits(const FixedShape& shape, const std::string& name) {
  return name.size() == shape.length && name.compare(0, shape.codeAt, shape.beginning) == 0 &&
         name[shape.closingAt] == shape.closing;
}

void LogDebug(const std::string& message) { LogToCore(ILogger::kLogDebug, message); }

[[noreturn]] void NotFound(const char* message) {
  LogAndThrow(ILogger::kLogDebug, message, TQDAStatusCode::kQDAStatusNotFound);
}

bool IsNotFound(const TQDAException& failure) {
  return failure.GetStatus().GetStatusCode() == TQDAStatusCode::kQDAStatusNotFound;
}

boost::shared_ptr<ICIMClass> ComputerSystemClass(const boost::shared_ptr<ICIMNamespace>& ns,
                                                 const std::string& className,
                                                 const TContext& context) {
  try {
    return ns->GetClass(className, context);
  } catch (TQDAException& failure) {
    if (IsNotFound(failure)) {
      LogDebug("TCIMSchemaHelper: no computer system");
    }
    throw TQDAException(failure);
  }
}

boost::shared_ptr<ICIMProperty> ProductNameProperty(const ICIMInstance& system,
                                                    const TContext& context) {
  try {
    return system.GetProperty("ProductName", context);
  } catch (TQDAException& failure) {
    if (!IsNotFound(failure)) {
      throw TQDAException(failure);
    }
  }
  NotFound("TCIMSchemaHelper: didn't find ProductName property");
}

}  // namespace

bool TCIMSchemaHelper::IsValidMachineType(const std::string& text) {
  for (std::size_t at = 0; at < kTypeLength; ++at) {
    if (!IsAlphanumeric(At(text, at))) {
      return false;
    }
  }
  return true;
}

bool TCIMSchemaHelper::IsValidMTM(const std::string& text) {
  if (!IsValidMachineType(text.substr(0, kTypeLength))) {
    return false;
  }
  for (std::size_t at = kTypeLength; at < kMTMLength; ++at) {
    if (!IsAlphanumericOrSpace(At(text, at))) {
      return false;
    }
  }
  return true;
}

std::string TCIMSchemaHelper::GetRawMTMString(boost::shared_ptr<ICIMNamespace> ns) {
  const TContext context = PluginContext();
  const boost::shared_ptr<ICIMClass> cls =
      ComputerSystemClass(ns, kSystemCreationClassName, context);
  const TInstances instances = CollectInstances(*cls);
  if (instances.size() != 1) {
    NotFound("TCIMSchemaHelper: computer system instances != 1");
  }
  const TCIMValue value = ProductNameProperty(*instances[0], context)->GetValue(TContext());
  if (value.IsNull()) {
    NotFound("TCIMSchemaHelper: ProductName is NULL");
  }
  if (value.GetType() != TCIMValue::TCIMType::kCIMTypeString) {
    NotFound("TCIMSchemaHelper: ProductName wasn't a string");
  }
  return value;
}

std::string TCIMSchemaHelper::GetMTM(boost::shared_ptr<ICIMNamespace> ns) {
  const std::string raw = GetRawMTMString(ns);
  const std::string code = ExtractMTM(raw.substr(0, raw.find_last_not_of(' ') + 1));
  LogDebug("TCIMSchemaHelper- Detected MTM " + code);
  return code;
}

std::string TCIMSchemaHelper::ExtractMTM(const std::string& name) {
  for (const FixedShape& shape : kFixedShapes) {
    if (Fits(shape, name)) {
      const std::string code = name.substr(shape.codeAt, kMTMLength);
      if (IsValidMTM(code)) {
        // A model of blanks stays as it is in these shapes; that is meant.
        return code;
      }
    }
  }

  std::string code;
  const std::size_t bracket = name.find("-[");
  if (bracket == std::string::npos) {
    if (name.size() != kMTMLength || !IsValidMTM(name)) {
      Throw(TQDAStatusCode::kQDAStatusInvalidFormat);
    }
    code = name;
  } else {
    const std::size_t begin = bracket + 2;
    if (At(name, begin + kMTMLength) == ']' && IsValidMTM(name.substr(begin, kMTMLength))) {
      code = name.substr(begin, kMTMLength);
    } else if (At(name, begin + kTypeLength) == ']' &&
               IsValidMachineType(name.substr(begin, kTypeLength))) {
      code = name.substr(begin, kTypeLength) + kUnknownModel;
    } else {
      Throw(TQDAStatusCode::kQDAStatusInvalidFormat);
    }
  }
  if (code.compare(kTypeLength, std::string::npos, "   ") == 0) {
    code.replace(kTypeLength, std::string::npos, kUnknownModel);
  }
  return code;
}

std::string TCIMSchemaHelper::GetMTM_vmwesxi(boost::shared_ptr<ICIMNamespace> ns) {
  const std::string name = GetSystemProductName_vmwesxi(ns);
  // The sum is made before the find is tested, on purpose: without "-[" it wraps around to 1, and
  // the text from there up to "]-" counts.
  const std::size_t start = name.find("-[") + 2;
  const std::size_t end = name.find("]-");
  if (start != std::string::npos && end != std::string::npos && start < end) {
    return name.substr(start, end - start);
  }
  return "Unknown";
}

std::string TCIMSchemaHelper::GetMachineType(boost::shared_ptr<ICIMNamespace> ns) {
  return GetMTM(ns).substr(0, kTypeLength);
}

std::string TCIMSchemaHelper::GetModelNumber(boost::shared_ptr<ICIMNamespace> ns) {
  return GetMTM(ns).substr(kTypeLength, kMTMLength - kTypeLength);
}

}  // namespace NZRVQDA20
