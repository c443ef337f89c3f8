// The FTP servers that with_ftp_peers.py has started at this program's side.

#ifndef TESTS_PEERS_FTPPEERS_H
#define TESTS_PEERS_FTPPEERS_H

#include <string>
#include <vector>

namespace ftp_peers {

// What the script tells under that key; empty when it tells nothing. A failure of the test when
// there is no script.
std::string Fact(const std::string& key);

// "ADDRESS:PORT" of a server, on the port that is not 21.
std::string At(const std::string& server, const std::string& portKey = "_port");

// The server's address.
std::string Address(const std::string& server);

// What a server has, or is to have, below its folder.
std::string Stored(const std::string& path);
bool IsStored(const std::string& path);
void Store(const std::string& path, const std::string& bytes);

// Any file's bytes as they are.
std::string Bytes(const std::string& path);

// The commands that a server is told from this object's making on.
class Seen {
 public:
  explicit Seen(const std::string& server);

  // All of them. Waits a while for `last` to be among them, because a server writes it down in its
  // own time.
  std::vector<std::string> All(const std::string& last = "") const;

  // Without those that the clients of the two platforms put differently: TYPE, PASV and EPSV, PWD,
  // SIZE, and what ends a connection.
  std::vector<std::string> Main(const std::string& last = "") const;

 private:
  std::string fPath;
  std::size_t fBegin;
};

}  // namespace ftp_peers

// Leaves the test as skipped when the server is missing, and says why.
#define QDACORE_NEEDS_PEER(server)                                   \
  do {                                                               \
    const std::string whyNot = ::ftp_peers::Fact("why_not_" server); \
    if (!whyNot.empty()) {                                           \
      GTEST_SKIP() << whyNot;                                        \
    }                                                                \
  } while (false)

#endif
