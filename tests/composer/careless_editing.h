// What the careless user does to the editors of the melody window.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "forms/event.h"

namespace corvana::prova {

/// A control and what is done to it. `tra` draws a number of a range, both ends included.
std::pair<std::string, Evento> GestoDiRedazione(const std::function<int(int, int)>& tra);

}  // namespace corvana::prova
