// The look of what Qt itself paints: menus, boxes, tool tips. GUI thread.
#pragma once

class QApplication;

namespace corvana {

/// What titles call the program.
constexpr const char* nomeProgramma = "Corvana";

/// Name, style, colours and letters of the program, once after the application was made.
void VestiProgramma(QApplication& qt);
/// The icon of all its windows. Drawing and handing it over takes a moment.
void PonIconaProgramma();

}  // namespace corvana
