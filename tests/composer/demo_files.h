// The melodies that come with the program, as they lie in its source folder, for tests that run
// once for each of them.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace corvana::prova {

/// Their names, in order; empty when there is no such folder.
inline std::vector<std::string> MelodieDemo() {
    std::vector<std::string> nomi;
    std::error_code errore;
    for (const auto& voce : std::filesystem::directory_iterator(CORVANA_DEMO, errore))
        if (voce.path().extension() == ".mel") nomi.push_back(voce.path().stem().string());
    std::sort(nomi.begin(), nomi.end());
    return nomi;
}

inline std::string ByteDemo(const std::string& nome) {
    std::ifstream file(std::filesystem::path(CORVANA_DEMO) / (nome + ".mel"), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The melody's name as far as it may be in that of a test.
inline std::string NomeDiProva(const testing::TestParamInfo<std::string>& melodia) {
    std::string nome = melodia.param;
    std::erase_if(nome, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); });
    return nome;
}

}  // namespace corvana::prova
