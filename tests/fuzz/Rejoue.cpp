// Replays files, or every file of folders, through the fuzz entry point: the corpus runs in
// the ordinary test suite, under the sanitizers, without the fuzzer itself. Paths are made
// absolute first: a target may work in a folder of its own.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille);

int main(int argc, char** argv) {
  std::vector<std::filesystem::path> fichiers;
  for (int i = 1; i < argc; ++i) {
    if (std::filesystem::is_directory(argv[i])) {
      for (const auto& e : std::filesystem::directory_iterator(argv[i]))
        if (e.is_regular_file()) fichiers.push_back(std::filesystem::absolute(e.path()));
    } else {
      fichiers.push_back(std::filesystem::absolute(argv[i]));
    }
  }
  for (const auto& f : fichiers) {
    std::ifstream in(f, std::ios::binary);
    const std::string octets((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(octets.data()), octets.size());
  }
  std::printf("%zu fichiers rejoués\n", fichiers.size());
  return fichiers.empty() ? 1 : 0;
}
