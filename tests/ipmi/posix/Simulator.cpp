#include <tests/ipmi/posix/Simulator.h>

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <tests/ipmi/SampleFrames.h>
#include <tests/ipmi/ScriptedBmc.h>

namespace ipmi_test {

namespace {

const char kProgram[] = "/usr/bin/ipmi_sim";

// A port that is free now. Somebody may take it before the simulator does; then it does not come
// up.
UdpAddress FreeAddress() {
  UdpSocket socket;
  socket.Bind({0x7F000001, 0});
  return socket.Bound();
}

}  // namespace

Simulator::Simulator() : fAddress(FreeAddress()) {
  fFolder.MakeFolder("state");
  fFolder.Write("lan.conf", "name \"bmc\"\nset_working_mc 0x20\n  startlan 1\n    addr " +
                                fAddress.Text() + " " + std::to_string(fAddress.port) +
                                "\n    priv_limit admin\n"
                                "    allowed_auths_callback straight\n"
                                "    allowed_auths_user straight\n"
                                "    allowed_auths_operator straight\n"
                                "    allowed_auths_admin straight\n"
                                "  endlan\n"
                                "  user 2 true \"admin\" \"secret\" admin 10 straight\n");
  fFolder.Write("commands",
                "mc_setbmc 0x20\n"
                "mc_add 0x20 0 no-device-sdrs 0x20 9 8 0x9f 0x1291 0xf02\n"
                "sel_enable 0x20 1000 0x0a\n"
                "mc_enable 0x20\n"
                "sel_add 0x20 0x02 0xb6 5 0 0 0x20 0 4 1 0x30 1 0x57 1 1\n");
  Start();
  fIsUp = WaitForAnswer();
}

Simulator::~Simulator() {
  if (fProcess > 0) {
    kill(fProcess, SIGKILL);
    waitpid(fProcess, nullptr, 0);
  }
}

bool Simulator::IsInstalled() { return access(kProgram, X_OK) == 0; }

void Simulator::Start() {
  const std::string configuration = fFolder.PathOf("lan.conf");
  const std::string commands = fFolder.PathOf("commands");
  const std::string state = fFolder.PathOf("state");
  const pid_t parent = getpid();
  fProcess = fork();
  if (fProcess == 0) {
    // It goes with us, whatever ends us.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) {
      _exit(127);
    }
    const int nothing = open("/dev/null", O_RDWR);
    for (const int standard : {0, 1, 2}) {
      dup2(nothing, standard);
    }
    execl(kProgram, kProgram, "-n", "-c", configuration.c_str(), "-f", commands.c_str(), "-s",
          state.c_str(), static_cast<char*>(nullptr));
    _exit(127);
  }
}

bool Simulator::WaitForAnswer() const {
  UdpSocket socket;
  std::string reply;
  UdpAddress from;
  // Get Session Challenge, which it answers to everybody.
  for (int tries = 0; tries < 100; ++tries) {
    socket.Send(SampleRequests()[0], fAddress);
    if (socket.Receive(&reply, &from, 100)) {
      return true;
    }
    // A port without a listener is told at once.
    usleep(20000);
  }
  return false;
}

Relay::Relay(const UdpAddress& server, bool mends)
    : fMends(mends), fServer(server), fBinding(BindBmcPort(&fFront)) {
  if (fBinding == UdpSocket::kBound) {
    fThread = std::thread([this] { Serve(); });
  }
}

Relay::~Relay() {
  fStop = true;
  if (fThread.joinable()) {
    fThread.join();
  }
}

void Relay::Serve() {
  UdpAddress client;
  UdpAddress server;
  std::string bytes;
  while (!fStop) {
    if (!fFront.Receive(&bytes, &client, 50)) {
      continue;
    }
    fRequests.push_back(bytes);
    if (fMends) {
      Mend(&bytes);
    }
    fBack.Send(bytes, fServer);
    if (fBack.Receive(&bytes, &server, 1000)) {
      Note(bytes);
      fReplies.push_back(bytes);
      fFront.Send(bytes, client);
    }
  }
}

// From request 3 on: what is numbered at all.
void Relay::Mend(std::string* request) {
  if (fRequests.size() >= 3 && request->size() > 8) {
    for (int i = 0; i < 4; ++i) {
      (*request)[static_cast<std::size_t>(5 + i)] = static_cast<char>(fNextNumber >> (8 * i));
    }
    ++fNextNumber;
  }
}

void Relay::Note(const std::string& reply) {
  if (fRequests.size() == 2 && reply.size() == 48) {
    for (std::size_t i = 0; i < 4; ++i) {
      fNextNumber |= static_cast<std::uint32_t>(static_cast<unsigned char>(reply[42 + i]))
                     << (8 * i);
    }
  }
}

}  // namespace ipmi_test
