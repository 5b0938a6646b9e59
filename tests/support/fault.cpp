// SPDX-License-Identifier: MIT
#include "support/fault.hpp"

#include <csetjmp>
#include <csignal>

namespace test {
namespace {

// The kernel gives the signal to the thread that made the access.
thread_local sigjmp_buf resume;
thread_local volatile sig_atomic_t watching = 0;
thread_local const void* volatile faultAddress = nullptr;

void onFault(int signal, siginfo_t* info, void*) {
  if (!watching) {
    std::signal(signal, SIG_DFL);  // a fault of the tests themselves happens again and ends them
    return;
  }
  faultAddress = info->si_code > 0 && info->si_code != SI_KERNEL ? info->si_addr : nullptr;
  siglongjmp(resume, 1);
}

void install() {
  static const bool once = [] {
    struct sigaction action = {};
    action.sa_sigaction = onFault;
    action.sa_flags = SA_SIGINFO | SA_NODEFER;
    sigaction(SIGSEGV, &action, nullptr);
    sigaction(SIGBUS, &action, nullptr);
    return true;
  }();
  static_cast<void>(once);
}

}  // namespace

std::optional<Fault> faultOf(const std::function<void()>& call) {
  install();
  if (sigsetjmp(resume, 0) != 0) {
    watching = 0;
    return Fault{faultAddress};
  }
  watching = 1;
  call();
  watching = 0;
  return std::nullopt;
}

}  // namespace test
