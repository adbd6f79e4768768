#pragma once

// Each test class of the text input aids runs from one executable.
int runCompleterTests(int argc, char **argv);
int runSpellCheckerTests(int argc, char **argv);
int runDateEditTests(int argc, char **argv);
