// The mirror of the keys: for each number of accidentals the major and the minor key, and the notes
// that are altered. Pure; any thread.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace corvana {

constexpr std::size_t righeSpecchio = 15;

/// A key's Latin name.
struct NomeTonica {
    std::string_view nome;
    int alterazione = 0;  ///< 1 for a sharp, -1 for a flat
};

struct RigaSpecchio {
    int accidenti;  ///< sharps, or less than 0 for flats
    NomeTonica maggiore, minore;
    std::string_view letteraMaggiore, letteraMinore;  ///< without the accidental
    std::string_view alterate;                        ///< in the order in which they are written
};

constexpr std::array<RigaSpecchio, righeSpecchio> specchioTonalita = {{
    {0, {"Do"}, {"La"}, "C", "A", ""},
    {1, {"Sol"}, {"Mi"}, "G", "E", "Fa"},
    {2, {"Re"}, {"Si"}, "D", "B", "Fa,Do"},
    {3, {"La"}, {"Fa", 1}, "A", "F", "Fa,Do,Sol"},
    {4, {"Mi"}, {"Do", 1}, "E", "C", "Fa,Do,Sol,Re"},
    {5, {"Si"}, {"Sol", 1}, "B", "G", "Fa,Do,Sol,Re,La"},
    {6, {"Fa", 1}, {"Re", 1}, "F", "D", "Fa,Do,Sol,Re,La,Mi"},
    {7, {"Do", 1}, {"La", 1}, "C", "A", "Fa,Do,Sol,Re,La,Mi,Si"},
    {-1, {"Fa"}, {"Re"}, "F", "D", "Si"},
    {-2, {"Si", -1}, {"Sol"}, "B", "G", "Si,Mi"},
    {-3, {"Mi", -1}, {"Do"}, "E", "C", "Si,Mi,La"},
    {-4, {"La", -1}, {"Fa"}, "A", "F", "Si,Mi,La,Re"},
    {-5, {"Re", -1}, {"Si", -1}, "D", "B", "Si,Mi,La,Re,Sol"},
    {-6, {"Sol", -1}, {"Mi", -1}, "G", "E", "Si,Mi,La,Re,Sol,Do"},
    {-7, {"Do", -1}, {"La", -1}, "C", "A", "Si,Mi,La,Re,Sol,Do,Fa"},
}};

}  // namespace corvana
