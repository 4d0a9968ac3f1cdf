#include "trainer/answer_keys.h"

#include <algorithm>
#include <span>
#include <utility>

#include "forms/keys.h"

namespace corvana {

namespace {

using Coppia = std::pair<int, int>;

std::optional<int> Cerca(std::span<const Coppia> tabella, int codice) {
    const auto c = std::find_if(tabella.begin(), tabella.end(),
                                [=](const Coppia& coppia) { return coppia.first == codice; });
    if (c == tabella.end()) return std::nullopt;
    return c->second;
}

}  // namespace

std::optional<int> RispostaDaTasto(int codice) {
    constexpr std::array<Coppia, 7> tabella = {
        {{'D', 1}, {97, 2}, {'F', 3}, {98, 4}, {'G', 5}, {99, 6}, {'H', 7}}};
    return Cerca(tabella, codice);
}

std::optional<int> RigaDaTasto(int codice) {
    constexpr std::array<Coppia, 9> tabella = {{{'Z', 0},
                                                {'X', 1},
                                                {'C', 2},
                                                {'V', 3},
                                                {'B', 5},
                                                {'N', 6},
                                                {'M', 7},
                                                {vk::virgola, 8},
                                                {vk::punto, 10}}};
    return Cerca(tabella, codice);
}

}  // namespace corvana
