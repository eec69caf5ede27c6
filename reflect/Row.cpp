// Where an attribute stands among its class's rows.
#include "reflect/Row.h"

namespace reflect {

Row const* rowOf(std::span<Row const> rows, Mox::AttributeId id) {
  for (Row const& row : rows)
    if (row.id == id) return &row;
  return nullptr;
}

}  // namespace reflect
