#pragma once

#include <drawing/layerfilter.h>
#include <drawing/visibilityrules.h>

/// What is not drawn at all: elements of hidden layers, and those that are off. Both have to live as long as the filter.
struct ElementFilter {
  const LayerFilter *layers = nullptr;
  const VisibilityRules *visibility = nullptr;

  bool hides(NetGeometry::Item item) const {
    return (layers != nullptr && layers->isHidden(item)) ||
           (visibility != nullptr && visibility->of(item) == VisibilityRules::State::Off);
  }
};
