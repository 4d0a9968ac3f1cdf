// Whether something composes the screen, so that a window can be transparent in places. GUI thread.
#pragma once

namespace corvana {

/// Asked anew each time: what composes can come and go.
bool SchermoComposto();

}  // namespace corvana
