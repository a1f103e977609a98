#pragma once

namespace Desktop {

/// Lets an X session manager start the program without arguments at the next login. Qt would have
/// it add the option -session, which the program does not take. Needs the QGuiApplication.
void restartWithoutArguments();

}  // namespace Desktop
