#pragma once
// The expected files of the data-driven tests: a text produced by a test is compared with
// its expected file and a difference is shown as `diff -u`; with TRAJ_REGENERE=1 in the
// environment the expected file is rewritten instead and the test is skipped.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

inline std::string LitTout(const std::filesystem::path& p) {
  std::ifstream f(p, std::ios::binary);
  return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

inline std::string Cite(const std::string& s) {
  std::string r = "'";
  for (char c : s) r += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return r + "'";
}

// `brouillon` is a scratch file that receives the text for the diff.
inline void CompareAvecAttendu(const std::string& obtenu, const std::filesystem::path& attendu,
                               const std::filesystem::path& brouillon) {
  if (std::getenv("TRAJ_REGENERE")) {
    std::ofstream(attendu, std::ios::binary) << obtenu;
    GTEST_SKIP() << attendu << " rewritten";
  }
  ASSERT_TRUE(std::filesystem::exists(attendu)) << attendu << " missing: TRAJ_REGENERE=1 writes it";
  if (LitTout(attendu) == obtenu) return;
  std::ofstream(brouillon, std::ios::binary) << obtenu;
  std::string diff;
  if (std::FILE* p = popen(("diff -u " + Cite(attendu.string()) + " " + Cite(brouillon.string())).c_str(), "r")) {
    for (int c; (c = std::fgetc(p)) != EOF;) diff += static_cast<char>(c);
    pclose(p);
  }
  ADD_FAILURE() << diff;
}
