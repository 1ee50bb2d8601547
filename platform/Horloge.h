#pragma once
// The playback clock: milliseconds from an arbitrary start, wrapping as a 32-bit count does.
#include <cstdint>

class THorloge {
public:
  virtual ~THorloge() = default;
  virtual std::uint32_t GetTickCount() = 0;
};

// The steady clock of the system.
class THorlogeSysteme : public THorloge {
public:
  std::uint32_t GetTickCount() override;
};

THorloge& Horloge();
// Installs h (not owned); null brings back the system clock.
void SetHorloge(THorloge* h);
