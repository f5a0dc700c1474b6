// What the network library cannot be told: not to hold the end of a request back until the server has acknowledged what
// came before, which costs some 40 ms for each file. The sockets are the library's own; the system knows them by
// number.
#pragma once

// Switches the delay off on every TCP connection that this process has by now. It flushes what is held back, too.
void SendWithoutDelay();
