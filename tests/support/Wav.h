#pragma once
// WAV files made in memory for the tests of what reads or plays music.
#include <cstddef>
#include <cstdint>
#include <string>

// v as `octets` little-endian bytes at the end of s.
inline void AjouteMot(std::string& s, std::uint32_t v, int octets) {
  for (int i = 0; i < octets; ++i) s += static_cast<char>((v >> (8 * i)) & 0xFF);
}

// The header of a file whose data, `octets` bytes, follow it: code 1 PCM or 3 float. `autres`
// stands between "WAVE" and "fmt ", for chunks a reader must step over; the RIFF size counts
// only the usual 36 bytes and the data.
inline std::string EnteteWav(int canaux, int frequence, int bits, std::size_t octets, int code = 1,
                             const std::string& autres = "") {
  std::string w = "RIFF";
  AjouteMot(w, static_cast<std::uint32_t>(36 + octets), 4);
  w += "WAVE" + autres + "fmt ";
  AjouteMot(w, 16, 4);
  AjouteMot(w, static_cast<std::uint32_t>(code), 2);
  AjouteMot(w, static_cast<std::uint32_t>(canaux), 2);
  AjouteMot(w, static_cast<std::uint32_t>(frequence), 4);
  AjouteMot(w, static_cast<std::uint32_t>(frequence * canaux * bits / 8), 4);
  AjouteMot(w, static_cast<std::uint32_t>(canaux * bits / 8), 2);
  AjouteMot(w, static_cast<std::uint32_t>(bits), 2);
  w += "data";
  AjouteMot(w, static_cast<std::uint32_t>(octets), 4);
  return w;
}
