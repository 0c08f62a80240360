#pragma once

// Puts the desktop's proxy for web requests in force for the whole program.
namespace SystemProxy {

// Asks the system which proxy serves a request to a public web site and
// makes the first answer the application's proxy.
void apply();

}
