// What stands between the paths of a list on this host.

#ifndef PLUGINS_MOF_HOST_PATHSEPARATOR_H
#define PLUGINS_MOF_HOST_PATHSEPARATOR_H

namespace mof_provider {
namespace host {

char PathSeparator();

}  // namespace host
}  // namespace mof_provider

#endif
