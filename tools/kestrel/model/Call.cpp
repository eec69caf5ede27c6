// From words to arguments.
#include "tools/kestrel/model/Call.h"

#include "Mox/Builtin.h"

#include <map>

namespace kestrel {

namespace {

/// Descriptors of primitives, which no module registers, by their names.
std::map<std::string, MoxType const*> const& primitives() {
  static std::map<std::string, MoxType const*> const byName = [] {
    std::map<std::string, MoxType const*> types;
    for (MoxType const* const type :
         {Mox::Builtin<bool>::_fwkType(), Mox::Builtin<U8>::_fwkType(),
          Mox::Builtin<S8>::_fwkType(), Mox::Builtin<U16>::_fwkType(),
          Mox::Builtin<U32>::_fwkType(), Mox::Builtin<S32>::_fwkType(),
          Mox::Builtin<U64>::_fwkType(), Mox::Builtin<double>::_fwkType(),
          Mox::Builtin<Mox::String8>::_fwkType(), Mox::Name::_fwkType()})
      types[textOf(type->fullTypeName().stringValue())] = type;
    return types;
  }();
  return byName;
}

MoxType const* descriptorOf(std::string const& type) {
  auto const found = primitives().find(type);
  return found != primitives().end() ? found->second : MoxType::typeNode(Mox::String8(type));
}

GenericIf::Ptr argumentOf(Paths const& paths, Parameter const& parameter, std::string const& word,
                          std::string const& path) {
  if (!parameter.descriptor)
    throw faultAt(path, parameter.name + ": a " + parameter.type + " can't be given as a text");
  try {
    return valueOf(paths, *parameter.descriptor, word);
  } catch (Mox::Exception const& complaint) {
    throw faultAt(path, parameter.name + ": " + textOf(complaint.message()));
  }
}

Arguments argumentsOf(Paths const& paths, MoxAttr const& operation,
                      std::vector<std::string> const& words, std::string const& path) {
  std::vector<Parameter> const parameters = parametersOf(operation);
  if (words.size() != parameters.size())
    throw faultAt(path, "it takes " + signatureOf(operation) + ", and " +
                            std::to_string(words.size()) + " are given");
  Arguments arguments;
  for (Parameter const& parameter : parameters)
    arguments.push_back(argumentOf(paths, parameter, words[arguments.size()], path));
  return arguments;
}

/// One argument goes by itself, several go in a list.
GenericIf::Ptr handedOver(Arguments const& arguments) {
  if (arguments.size() == 1) return arguments.front();
  if (arguments.empty()) return nullptr;
  Mox::Ptr<GenericIf::List_> const list = new GenericIf::List_;
  for (GenericIf::Ptr const& argument : arguments) list->genericIfEnq(argument);
  return list;
}

}  // namespace

std::vector<Parameter> parametersOf(MoxAttr const& operation) {
  std::vector<Parameter> parameters;
  auto const& types = operation.constructorArgTypes();
  for (Mox::Name const& name : operation.constructorArgNames()) {
    std::string const type = textOf(types[parameters.size()].stringValue());
    parameters.push_back({textOf(name.stringValue()), type, descriptorOf(type)});
  }
  return parameters;
}

std::vector<std::string> operationsOf(MoxType const& type) {
  std::vector<std::string> names;
  for (MoxAttr const* const attribute : attributesOf(type))
    if (attribute->isOperation()) names.push_back(nameOf(*attribute));
  return names;
}

MoxAttr const& operationAt(Place const& place, std::string const& name) {
  if (!place.isObject()) throw faultAt(place.path, "what stands there has no operations");
  MoxAttr const* const attribute = attributeOf(*place.face->type(), name);
  if (!attribute || !attribute->isOperation())
    throw faultAt(place.path,
                  "no operation \"" + name + "\"; " + listed(operationsOf(*place.face->type())));
  return *attribute;
}

GenericIf::Ptr call(Paths const& paths, Place const& place, MoxAttr const& operation,
                    std::vector<std::string> const& words) {
  std::string const path = place.path + "/" + nameOf(operation);
  Arguments const arguments = argumentsOf(paths, operation, words, path);
  if (place.kind == Place::Kind::root && place.root->refuse)
    place.root->refuse(operation, arguments);
  return askedAt(path, [&] {
    return place.face->attributeOp({operation.id(), GenericIf::opWrite}, GenericIf::notGiven,
                                   handedOver(arguments));
  });
}

}  // namespace kestrel
