// The audio libraries print on the program's error output what a machine without their servers or
// devices lacks. Any thread, any number of times.
#pragma once

namespace corvana {

void TaciLibrerie();

}  // namespace corvana
