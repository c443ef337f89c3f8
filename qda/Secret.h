// Where a password comes from: a file, the environment or a hidden prompt. Never an argument,
// because the arguments of a program are shown to everybody on the machine.

#ifndef QDA_SECRET_H
#define QDA_SECRET_H

#include <string>

namespace qda {

struct SecretRequest {
  // What the file holds, without the line end behind its first and only line, is the secret; "-"
  // is standard input. Empty: none is given.
  std::string file;
  // The environment variable that is asked when no file is given. One that is set and empty is an
  // empty secret.
  std::string variable;
  // What is written to the terminal when that is not set either, such as
  // "Password of admin: ". What is typed is not shown.
  std::string prompt;
};

// Stores the secret in `*secret`. False, after one line on standard error, when there is none to be
// had; `*secret` is untouched then.
bool ReadSecret(const SecretRequest& request, std::string* secret);

}  // namespace qda

#endif
