// SPDX-License-Identifier: MIT
//
// The test process takes in the orphans of a program, so that it sees every process end that the
// program leaves behind, and what each took.
#include "tests/hostile/program_run.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace hostile {

namespace {

namespace fs = std::filesystem;

double secondsOf(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

void redirect(int stream, const std::string& path) {
  ::dup2(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600), stream);
}

[[noreturn]] void execute(const std::string& line, const std::string& folder) {
  const std::string host = std::string(PHOTOHOST_PATH) + " --root root --headless";
  std::vector<std::string> words{"TZ=UTC",
                                 "HOME=" + folder,
                                 "XDG_RUNTIME_DIR=" + folder,
                                 "PATH=/usr/bin:/bin",
                                 "ASAN_OPTIONS=detect_leaks=0",
                                 std::string("TOOL=") + TOOL_PATH,
                                 "HOST=" + host,
                                 std::string("EXTENSIONS=") + EXTENSIONS_FOLDER,
                                 std::string("FILES=") + HOSTILE_FILES};
  std::vector<char*> environment;
  for (std::string& word : words) environment.push_back(word.data());
  environment.push_back(nullptr);
  if (::chdir(folder.c_str()) == 0)
    ::execle("/bin/sh", "sh", "-c", line.c_str(), nullptr, environment.data());
  ::_exit(127);
}

std::string commandOf(pid_t process) {
  return support::contentsOf("/proc/" + std::to_string(process) + "/cmdline");
}

std::vector<pid_t> childrenOf(pid_t process) {
  std::vector<pid_t> children;
  std::error_code gone;
  const fs::path threads = "/proc/" + std::to_string(process) + "/task";
  for (fs::directory_iterator thread(threads, gone), end; !gone && thread != end;
       thread.increment(gone)) {
    std::ifstream list(thread->path() / "children");
    for (pid_t child = 0; list >> child;) children.push_back(child);
  }
  return children;
}

}  // namespace

ProgramRun::ProgramRun(const std::string& line, const std::function<void()>& prepare) {
  ::prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0);
  _process = ::fork();
  if (_process != 0) return;
  redirect(STDOUT_FILENO, _folder.file("output"));
  redirect(STDERR_FILENO, _folder.file("messages"));
  if (prepare) prepare();
  execute("exec 0</dev/null; " + line, _folder.path());
}

bool ProgramRun::isRunning() const {
  siginfo_t info{};
  return ::waitid(P_PID, static_cast<id_t>(_process), &info, WEXITED | WNOHANG | WNOWAIT) == 0 &&
         info.si_pid == 0;
}

std::vector<pid_t> ProgramRun::workers() const {
  std::vector<pid_t> workers = childrenOf(_process);
  const std::string own = commandOf(_process);
  std::erase_if(workers, [&](pid_t worker) { return commandOf(worker) == own; });
  return workers;
}

RunEnd ProgramRun::finish() {
  RunEnd end;
  int status = 0;
  rusage usage{};
  for (pid_t ended = 0; (ended = ::wait4(-1, &status, 0, &usage)) > 0 || errno == EINTR;) {
    if (ended == _process)
      end.status = WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
    end.peakKilobytes = std::max(end.peakKilobytes, usage.ru_maxrss);
    end.processorSeconds += secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime);
  }
  end.output = support::contentsOf(_folder.file("output"));
  end.messages = support::contentsOf(_folder.file("messages"));
  return end;
}

RunEnd runLine(const std::string& line) {
  return ProgramRun(line).finish();
}

std::string showing(const std::string& library, const std::string& script) {
  return "cat >script <<'END'\n" + script +
         "END\nexec $HOST --extensions $EXTENSIONS --script script --library '" + library + "'";
}

std::string hostileFile(const std::string& name) {
  return std::string(HOSTILE_FILES) + "/" + name;
}

std::vector<std::string> namesIn(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename());
  std::ranges::sort(names);
  return names;
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

}  // namespace hostile
