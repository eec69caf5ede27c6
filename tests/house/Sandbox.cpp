// A scratch folder, and shell commands run in it.
#include "tests/house/Sandbox.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <sys/wait.h>

namespace house {

namespace fs = std::filesystem;

Outcome runIn(const std::string& folder, const std::string& command) {
  const std::string line = "cd '" + folder + "' && ( " + command + " ) </dev/null 2>&1";
  FILE* pipe = popen(line.c_str(), "r");
  if (pipe == nullptr) throw std::runtime_error("can't run a shell");
  std::string output;
  char piece[4096];
  while (const std::size_t got = fread(piece, 1, sizeof piece, pipe)) output.append(piece, got);
  const int status = pclose(pipe);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), output};
}

Sandbox::Sandbox() {
  std::string name = (fs::temp_directory_path() / "house.XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("can't make a folder");
  path_ = name;
}

Sandbox::~Sandbox() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

void Sandbox::has(const std::string& name, const std::string& content) const {
  const fs::path file = fs::path(path_) / name;
  fs::create_directories(file.parent_path());
  std::ofstream(file) << content;
}

void Sandbox::hasProgram(const std::string& name, const std::string& script) const {
  has("bin/" + name, "#!/bin/sh\n" + script);
  fs::permissions(path_ + "/bin/" + name, fs::perms::owner_all);
}

void Sandbox::hasOwn(const std::string& name) const {
  const fs::path file = fs::path(path_) / name;
  fs::create_directories(file.parent_path());
  fs::copy_file(repository(name), file);
}

Outcome Sandbox::run(const std::string& command) const {
  return runIn(path_, "PATH='" + path_ + "/bin':\"$PATH\"; " + command);
}

std::string repository(const std::string& name) {
  return std::string(KESTREL_SOURCE_DIR) + "/" + name;
}

}  // namespace house
