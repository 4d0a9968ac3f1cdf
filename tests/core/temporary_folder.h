// A folder of the test's own on the disk, gone with the test.
#pragma once

#include <filesystem>
#include <string>

namespace corvana::prova {

class CartellaProvvisoria {
public:
    CartellaProvvisoria();
    CartellaProvvisoria(const CartellaProvvisoria&) = delete;
    CartellaProvvisoria& operator=(const CartellaProvvisoria&) = delete;
    ~CartellaProvvisoria();

    std::string Di(const std::string& nome) const { return (cartella_ / nome).string(); }
    /// Number of entries that lie in it.
    int Quanti() const;

private:
    std::filesystem::path cartella_;
};

}  // namespace corvana::prova
