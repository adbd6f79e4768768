// Linked with every object of kal_core and nothing of the GUI layer; it only
// has to build. Running it prints the version so ctest can call it.
#include <cstdio>

int main()
{
    std::printf("%s\n", PELLWICK_VERSION);
    return 0;
}
