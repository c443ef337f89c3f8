#include <smbios/host/FirmwareTable.h>

namespace smbios {
namespace host {

FirmwareTable::~FirmwareTable() = default;

}  // namespace host
}  // namespace smbios
