// The look of what Qt itself paints: menus, boxes, tool tips. GUI thread.
#pragma once

#include <future>

class QApplication;

namespace corvana {

/// What titles call the program.
constexpr const char* nomeProgramma = "Corvana";

/// Reads what the system says of its fonts, on a thread of its own: that takes as long as the
/// toolkit's own start, and needs nothing of it.
class CaratteriDelSistema {
public:
    CaratteriDelSistema();
    /// Returns when they have been read.
    void Aspetta() const { letti_.wait(); }

private:
    std::future<void> letti_;
};

/// Name, style, colours and letters of the program, once after the application was made.
void VestiProgramma(QApplication& qt);
/// The icon of all its windows. Drawing and handing it over takes a moment.
void PonIconaProgramma();

}  // namespace corvana
