#include "parserfactory.h"

#include "boundedparser.h"

std::unique_ptr<mup::ParserX> ParserFactory::create(const NetData *net) {
  return std::make_unique<BoundedParser>(net);
}
