// The one form of the reinstantiation error.
#include "frame/Reinstantiation.h"

#include "Mox/Exception.h"

namespace frame {

void reinstantiated(Mox::String8 const& name, char const* parameter, Mox::String8 const& asked,
                    Mox::String8 const& present) {
  Mox::String8 text = "Reinstantiating the entity with name ";
  text += name + " where constructor parameter attribute _" + parameter;
  text += " has a different value of " + asked + " than the current value of " + present;
  Mox::throwNameInUseException(text + " not allowed");
}

}  // namespace frame
