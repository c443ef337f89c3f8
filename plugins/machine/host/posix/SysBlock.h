// The drives of a folder that is laid out like /sys/block.

#ifndef PLUGINS_MACHINE_HOST_POSIX_SYSBLOCK_H
#define PLUGINS_MACHINE_HOST_POSIX_SYSBLOCK_H

#include <string>
#include <vector>

#include <plugins/machine/host/Disks.h>

namespace machine {
namespace host {

std::vector<DiskReading> ReadDisksIn(const std::string& folder);

}  // namespace host
}  // namespace machine

#endif
