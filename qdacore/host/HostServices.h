// Which object serves each area of the host. Tests of internals put a recording or failing one
// in place of the real one; nothing else may.

#ifndef QDACORE_HOST_HOSTSERVICES_H
#define QDACORE_HOST_HOSTSERVICES_H

#include <qdacore/host/Account.h>
#include <qdacore/host/Clock.h>
#include <qdacore/host/Console.h>
#include <qdacore/host/Environment.h>
#include <qdacore/host/EventLog.h>
#include <qdacore/host/Files.h>
#include <qdacore/host/FtpClient.h>
#include <qdacore/host/Machine.h>
#include <qdacore/host/Modules.h>
#include <qdacore/host/Network.h>
#include <qdacore/host/Processes.h>
#include <qdacore/host/Resolver.h>

namespace NZRVQDA20 {
namespace host {

// The host's own, one for the life of the process.
Clock& SystemClock();
EventLog& SystemEventLog();
Files& SystemFiles();
FtpClient& SystemFtpClient();
Modules& SystemModules();
Account& SystemAccount();
Console& SystemConsole();
Environment& SystemEnvironment();
Machine& SystemMachine();
Processes& SystemProcesses();
Resolver& SystemResolver();
Network& SystemNetwork();

// A null pointer stands for the host's own. Not guarded against threads.
struct Replacements {
  Clock* clock = nullptr;
  EventLog* eventLog = nullptr;
  Files* files = nullptr;
  Modules* modules = nullptr;
  Account* account = nullptr;
  Console* console = nullptr;
  Environment* environment = nullptr;
  Machine* machine = nullptr;
  Processes* processes = nullptr;
  FtpClient* ftpClient = nullptr;
  Resolver* resolver = nullptr;
  Network* network = nullptr;
};
extern Replacements replacements;

}  // namespace host
}  // namespace NZRVQDA20

#endif
