#include "calc/results.h"

namespace verandis {

RunResults runResults;

}  // namespace verandis
