#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "tests/support/temporary_folder.h"

namespace orvendal {

/// The program as a shell starts it on a machine without a display, with a folder to work in.
class StartedProgram : public testing::Test {
 protected:
  /// Runs commands of the shell and keeps what they write; gives the exit code.
  int RunInShell(const std::string& commands) {
    const std::string kept = "(" + commands + ") >'" + (folder / "out") + "' 2>'" + (folder / "err") + "'";
    const int status = std::system(kept.c_str());
    output = Content("out");
    errors = Content("err");
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  /// What stands in a file of the folder.
  std::string Content(const std::string& name) const {
    std::ifstream file(folder / name, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
  }

  TemporaryFolder folder;
  std::string output;
  std::string errors;
};

}  // namespace orvendal
