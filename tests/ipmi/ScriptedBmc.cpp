#include <tests/ipmi/ScriptedBmc.h>

#include <chrono>
#include <random>

#include <tests/ipmi/SampleFrames.h>

namespace ipmi_test {

UdpSocket::Binding BindBmcPort(UdpSocket* socket) {
  std::random_device random;
  UdpSocket::Binding binding = UdpSocket::kTaken;
  for (int tries = 0; tries < 600 && binding == UdpSocket::kTaken; ++tries) {
    if (tries > 0) {
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    // 127.1.0.1 to 127.199.255.254.
    const std::uint32_t host = 0x7F010000 + random() % (199u << 16);
    binding = socket->Bind({(host & 0xFFFFFF00) + 1 + random() % 254, 623});
  }
  return binding;
}

std::vector<BmcStep> GoodScript() {
  std::vector<BmcStep> script(4);
  for (std::size_t step = 0; step < 4; ++step) {
    script[step].replies = {SampleReplies()[step]};
  }
  return script;
}

ScriptedBmc::ScriptedBmc(const std::vector<BmcStep>& script)
    : fScript(script), fBinding(BindBmcPort(&fSocket)) {
  if (IsUp()) {
    fThread = std::thread([this] { Serve(); });
  }
}

ScriptedBmc::~ScriptedBmc() {
  fStop = true;
  if (fThread.joinable()) {
    fThread.join();
  }
}

std::string ScriptedBmc::Reason() const {
  return fBinding == UdpSocket::kDenied ? "port 623 takes administrator rights"
                                        : "port 623 cannot be had on loopback";
}

std::vector<std::string> ScriptedBmc::Requests() const {
  const std::lock_guard<std::mutex> lock(fMutex);
  return fRequests;
}

bool ScriptedBmc::HadOnePeer() const {
  const std::lock_guard<std::mutex> lock(fMutex);
  for (const UdpAddress& peer : fPeers) {
    if (peer.port != fPeers[0].port || peer.ip != fPeers[0].ip) {
      return false;
    }
  }
  return !fPeers.empty();
}

void ScriptedBmc::Serve() {
  std::string request;
  UdpAddress from;
  while (!fStop) {
    if (!fSocket.Receive(&request, &from, 50)) {
      continue;
    }
    std::size_t step = 0;
    {
      const std::lock_guard<std::mutex> lock(fMutex);
      step = fRequests.size();
      fRequests.push_back(request);
      fPeers.push_back(from);
    }
    if (step < fScript.size()) {
      std::this_thread::sleep_for(std::chrono::milliseconds(fScript[step].delayMs));
      for (const std::string& reply : fScript[step].replies) {
        fSocket.Send(reply, from);
      }
    }
  }
}

}  // namespace ipmi_test
