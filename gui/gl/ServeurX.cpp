#include "gui/gl/ServeurX.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

TServeurX::~TServeurX() {
  if (pid_ <= 0) return;
  kill(pid_, SIGTERM);
  waitpid(pid_, nullptr, 0);
}

bool TServeurX::Assure(std::string& erreur) {
  if (const char* d = std::getenv("DISPLAY"); d && *d) return true;
  int tube[2];
  if (pipe2(tube, O_CLOEXEC) != 0) {
    erreur = std::strerror(errno);
    return false;
  }
  const pid_t pid = fork();
  if (pid < 0) {
    erreur = std::strerror(errno);
    close(tube[0]);
    close(tube[1]);
    return false;
  }
  if (pid == 0) {
    // Xvfb chooses a free display and writes its number on the tube.
    if (tube[1] == 3)
      fcntl(3, F_SETFD, 0);
    else
      dup2(tube[1], 3);
    if (int nul = open("/dev/null", O_RDWR); nul >= 0) {
      dup2(nul, 0);
      dup2(nul, 1);
      dup2(nul, 2);
    }
    execlp("Xvfb", "Xvfb", "-displayfd", "3", "-screen", "0", "1920x1200x24", "-nolisten", "tcp", "-noreset",
           static_cast<char*>(nullptr));
    _exit(127);
  }
  close(tube[1]);
  pid_ = pid;
  std::string numero;
  pollfd attente{tube[0], POLLIN, 0};
  char c;
  // Ten seconds at most for the server to come up.
  while (poll(&attente, 1, 10000) > 0 && read(tube[0], &c, 1) == 1 && c != '\n') numero += c;
  close(tube[0]);
  if (numero.empty()) {
    erreur = "Xvfb n'a pas démarré (paquet xvfb installé ?)";
    return false;
  }
  setenv("DISPLAY", (":" + numero).c_str(), 1);
  setenv("LIBGL_ALWAYS_SOFTWARE", "1", 0);
  return true;
}

bool TServeurX::PrepareHorsEcran(std::string& erreur) {
  if (!Assure(erreur)) return false;
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  return true;
}
