#include <plugins/mof/host/PathSeparator.h>

namespace mof_provider {
namespace host {

char PathSeparator() { return ':'; }

}  // namespace host
}  // namespace mof_provider
