#include <qdacore/host/HostServices.h>

namespace NZRVQDA20 {
namespace host {

// Plain pointers, null from the start: no work at load.
Replacements replacements;

Clock& HostClock() { return replacements.clock ? *replacements.clock : SystemClock(); }

EventLog& HostEventLog() {
  return replacements.eventLog ? *replacements.eventLog : SystemEventLog();
}

Files& HostFiles() { return replacements.files ? *replacements.files : SystemFiles(); }

FtpClient& HostFtpClient() {
  return replacements.ftpClient ? *replacements.ftpClient : SystemFtpClient();
}

Modules& HostModules() { return replacements.modules ? *replacements.modules : SystemModules(); }

Account& HostAccount() { return replacements.account ? *replacements.account : SystemAccount(); }

Console& HostConsole() { return replacements.console ? *replacements.console : SystemConsole(); }

Environment& HostEnvironment() {
  return replacements.environment ? *replacements.environment : SystemEnvironment();
}

Machine& HostMachine() { return replacements.machine ? *replacements.machine : SystemMachine(); }

Processes& HostProcesses() {
  return replacements.processes ? *replacements.processes : SystemProcesses();
}

Resolver& HostResolver() {
  return replacements.resolver ? *replacements.resolver : SystemResolver();
}

Network& HostNetwork() { return replacements.network ? *replacements.network : SystemNetwork(); }

}  // namespace host
}  // namespace NZRVQDA20
