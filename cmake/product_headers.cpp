// What the precompiled headers of the product are made beside.
#include <string>
