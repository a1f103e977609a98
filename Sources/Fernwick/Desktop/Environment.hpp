#pragma once

namespace Desktop {

/// Sets every environment variable that this program changes for the libraries it uses. Call it
/// before the first thread starts: changing the environment while another thread reads it is a data
/// race.
void prepareEnvironment();

}  // namespace Desktop
