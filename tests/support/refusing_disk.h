#pragma once
#include <csignal>
#include <cstdlib>
#include <sys/resource.h>
#include <unistd.h>

/// Files grow to a number of bytes and no further, as on a full disk, until this goes.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    handler_ = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit narrow{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &narrow);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int) = SIG_DFL;
};

/// Gives up the rights of the superuser, whom no file permission stops, until this goes.
class OrdinaryUser {
 public:
  OrdinaryUser() : user_(geteuid()) {
    if (user_ == 0 && seteuid(kNobody) != 0) std::abort();
  }
  ~OrdinaryUser() {
    if (user_ == 0 && seteuid(0) != 0) std::abort();
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;
  uid_t user_;
};
