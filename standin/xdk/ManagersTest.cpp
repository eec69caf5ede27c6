// The table of managers against the SDK's declarations and against the documentation.
#include "Xdk/Xdk.h"
#include "standin/xdk/Managers.h"

#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <sstream>
#include <typeinfo>

namespace xdksim {
namespace {

std::string contentOf(std::string const& file) {
  std::ifstream in(std::string(KESTREL_SOURCE_DIR) + '/' + file);
  std::ostringstream content;
  content << in.rdbuf();
  return content.str();
}

/// Names of the manager classes that a header of the SDK defines.
std::set<std::string> classesIn(std::string const& header) {
  std::string text = contentOf(header);
  std::set<std::string> names;
  std::istringstream words(text);
  for (std::string word, name; words >> word;) {
    if (word != "class") continue;
    words >> name >> word;
    if (word == ":") names.insert(name);
  }
  return names;
}

std::set<std::string> declaredRows(bool singletons) {
  std::set<std::string> names;
  for (Manager const& manager : managers()) {
    if (manager.isSingleton() == singletons) names.insert(manager.name);
  }
  return names;
}

TEST(ManagersTest, EveryDeclaredClassHasItsRowAndEveryRowItsClass) {
  EXPECT_EQ(classesIn("platform/Xdk/LayerMgrs.h"), declaredRows(false));
  EXPECT_EQ(classesIn("platform/Xdk/SingletonMgrs.h"), declaredRows(true));
}

TEST(ManagersTest, RowMakesAnObjectOfTheClassThatItNames) {
  for (Manager const& manager : managers()) {
    xpPrimitiveMgr* object = manager.declared.object();
    std::unique_ptr<xpPrimitiveMgr> owned(manager.isSingleton() ? nullptr : object);
    std::string length = std::to_string(std::string(manager.name).size());
    EXPECT_EQ(typeid(*object).name(), length + manager.name);
  }
}

TEST(ManagersTest, ClassesHaveVectorsOfTheirOwn) {
  std::set<std::vector<U32>*> vectors;
  for (Manager const& manager : managers()) {
    EXPECT_EQ(manager.declared.ids != nullptr, !manager.isSingleton());
    if (manager.declared.ids) {
      EXPECT_TRUE(vectors.insert(manager.declared.ids).second);
    }
  }
}

TEST(ManagersTest, NamesAreThereOnce) {
  std::set<std::string> names;
  for (Manager const& manager : managers()) EXPECT_TRUE(names.insert(manager.name).second);
  EXPECT_EQ(names.size(), 38u);
}

TEST(ManagersTest, OperationsStandInTheOrderOfTheirNumbers) {
  for (Operation const& operation : operations())
    EXPECT_EQ(&operationOf(operation.call), &operation);
}

TEST(ManagersTest, OperationsAreFoundByName) {
  EXPECT_TRUE(managerOf("xpIaclMgr")->has("createTable"));
  EXPECT_TRUE(managerOf("xpIaclMgr")->has("addDevice"));
  EXPECT_FALSE(managerOf("xpIaclMgr")->has("loadDefaultValue"));
  EXPECT_FALSE(managerOf("xpIaclMgr")->has(Call::none));
}

TEST(ManagersTest, DocumentationHoldsTheTables) {
  std::string page = contentOf("docs/simulated-sdk.md");
  EXPECT_NE(page.find(managersMarkdown()), std::string::npos) << managersMarkdown();
  EXPECT_NE(page.find(operationsMarkdown()), std::string::npos) << operationsMarkdown();
}

}  // namespace
}  // namespace xdksim
