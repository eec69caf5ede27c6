// Registration of a module, in its fixed order.
#include "frame/Module.h"

namespace frame {

void Module::initialise() {
  if (done_) return;
  auto const reactor = Mox::IntrospectionReactor::global();
  if (!reactor->ready()) return;
  // Ahead of the work: asking for a descriptor leads back here.
  done_ = true;
  describeAll(*reactor);
}

void Module::describeAll(Mox::IntrospectionReactor& reactor) const {
  for (TypeOf type : used_) type();
  for (TypeOf type : alphabetical_) type();
  reactor.handleNameSpace(nameSpace_);
  for (TypeRow const* row : types_) describe(reactor, *row);
}

void Module::load() {
  for (TypeRow const* row : types_) Mox::MoxType::typeNodeIs(row->descriptor(), row->fullName);
  initialise();
  lookUpAttributes();
}

void Module::lookUpAttributes() const {
  for (TypeRow const* row : types_) {
    Mox::MoxType const& type = *row->descriptor();
    auto** cached = row->attributeCache;
    for (AttributeRow const& attribute : row->attributes)
      *cached++ = type.attr(attribute.name).ptr();
  }
}

}  // namespace frame
