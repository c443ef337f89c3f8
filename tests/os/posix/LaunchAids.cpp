#include <tests/os/LaunchAids.h>

namespace launch_aids {

using namespace test_support;

Programs::Programs() {
  fFolder.Write("editor", "echo \"editor [$1][$2]\"\n");
  fFolder.Write("shell", "echo \"shell [$1][$2]\"\n");
}

ChildResult Programs::Run(const std::string& child,
                          const std::vector<std::string>& arguments) const {
  const std::string editor = "sh " + fFolder.PathOf("editor");
  const std::string shell = "sh " + fFolder.PathOf("shell");
  return RunChild(child, {{"VISUAL", editor.c_str()}, {"SHELL", shell.c_str()}}, arguments);
}

}  // namespace launch_aids
