#include "platform/Horloge.h"

#include <chrono>

namespace {
THorlogeSysteme horlogeSysteme;
THorloge* horlogeCourante = &horlogeSysteme;
}  // namespace

std::uint32_t THorlogeSysteme::GetTickCount() {
  const auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(
      std::chrono::steady_clock::now().time_since_epoch());
  return static_cast<std::uint32_t>(ms.count());
}

THorloge& Horloge() { return *horlogeCourante; }

void SetHorloge(THorloge* h) { horlogeCourante = h ? h : &horlogeSysteme; }
