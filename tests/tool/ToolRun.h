// Runs the built tool as a user would.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace tool {

/// What a run has printed and how it ended.
struct Outcome {
  std::string out;
  std::string err;
  int status;  ///< exit status, or 128 and the number of the signal that ended it
};

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

inline File scratchFile() { return File(std::tmpfile(), std::fclose); }

inline std::string content(File const& file) {
  std::rewind(file.get());
  std::string text;
  char piece[4096];
  while (std::size_t const size = std::fread(piece, 1, sizeof piece, file.get()))
    text.append(piece, size);
  return text;
}

inline std::vector<std::string> words(std::string const& text) {
  std::istringstream in(text);
  std::vector<std::string> result;
  for (std::string word; in >> std::quoted(word);) result.push_back(word);
  return result;
}

inline std::vector<std::string> linesOf(std::string const& text) {
  std::istringstream in(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

/// What the file holds, byte by byte; nothing where it can't be read.
inline std::string contentOf(std::string const& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

/// The child's side: becomes the tool, in `folder`, or ends with 127.
[[noreturn]] inline void becomeTool(std::vector<std::string> arguments, std::string const& folder,
                                    int out, int err) {
  rlimit const noCore{0, 0};
  setrlimit(RLIMIT_CORE, &noCore);
  arguments.insert(arguments.begin(), "kestrel");
  std::vector<char*> argv;
  for (std::string& argument : arguments) argv.push_back(argument.data());
  argv.push_back(nullptr);
  if (chdir(folder.c_str()) == 0 && dup2(out, STDOUT_FILENO) >= 0 && dup2(err, STDERR_FILENO) >= 0)
    execv(KESTREL_BINARY_DIR "/bin/kestrel", argv.data());
  _exit(127);
}

/// Runs "kestrel <arguments>", which are separated by blanks and may stand in double quotes, with
/// `folder` as working folder. Standard output goes to `device` where one is given, and isn't seen
/// then.
inline Outcome kestrel(std::string const& arguments, std::string const& folder = ".",
                       char const* device = nullptr) {
  File const out = scratchFile();
  File const err = scratchFile();
  int const to = device ? open(device, O_WRONLY | O_CLOEXEC) : fileno(out.get());
  pid_t const child = fork();
  if (child == 0) becomeTool(words(arguments), folder, to, fileno(err.get()));
  int status = 0;
  waitpid(child, &status, 0);
  if (device) close(to);
  return {content(out), content(err),
          WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status)};
}

/// A folder that goes with its files.
class Folder {
 public:
  Folder() : path_("/tmp/kestrel-tool-XXXXXX") {
    if (!mkdtemp(path_.data())) std::abort();
  }
  ~Folder() { std::filesystem::remove_all(path_); }
  Folder(Folder const&) = delete;
  Folder& operator=(Folder const&) = delete;

  std::string const& path() const { return path_; }
  void has(std::string const& name, std::string const& text) const {
    File const file(std::fopen((path_ + "/" + name).c_str(), "wb"), std::fclose);
    std::fwrite(text.data(), 1, text.size(), file.get());
  }

 private:
  std::string path_;
};

}  // namespace tool
