#pragma once

// Registers the icons compiled into the GUI library. kal_gui is a static
// library, so the program and every widget test call this once at start.
void kalInitGuiResources();
