#include "host/script/FCmdManager.h"
#include "tests/support/FModelTest.h"

namespace {

// One for each way to form a name. Under such names commands are hidden, looked up and documented; a change of one
// breaks scripts that name it.
const QStringList commandClasses{
    "FAttribCmdFGenIntResultsFilesetSpacesAndTabsSeparatorbool",
    "FMemberCmdFGenIntResultsFilesetTabSeaparatorbool",
    "FCreateCmdFResultsGenIntgenericIntegrationResultsFDesignint",
    "FMemberCmdFResultsGenIntgetDataAtdoublestring",
    "FMemberCmdFResultsGenIntgetAverageOfLastRowsintint",
    "FCmdimportGenIntDefinitionFConfigurationGenIntFDefinitionGenIntimportGenIntDefinitionstring",
    "FCreateCmdFDefinitionGenIntgenericIntegrationDefinition",
    "FAttribCmdFDefinitionGenIntsetFilesFGenIntFileContainer",
    "FAttribCmdFSoftwareConnectorsetComputationFExternComputation",
    "FAttribCmdFSoftwareConnectorsetItemSizeFEnum",
    "FCmdrefreshAllSoftConsFSoftwareConnectorvoidrefreshAll",
    "FMemberCmdFGenIntComputationgetResults",
};

class CommandClassesTest : public FModelTest {};

TEST_F(CommandClassesTest, areKnownUnderTheirExactNames) {
    for (const QString& name : commandClasses) {
        const FObject* prototype = FObject::getPrototype(name);
        ASSERT_NE(prototype, nullptr) << name.toStdString();
        EXPECT_EQ(prototype->getClass(), name);
    }
}

TEST_F(CommandClassesTest, typedCommandsHideThoseOfTheHost) {
    const auto offered = [](const QString& className, const QString& name) {
        QStringList classes;
        for (const FCmdRow* row :
             FCmdManager::instance()->findMembers(FObject::getPrototype(className)->getClassData(), name)) {
            classes.append(row->className());
        }
        return classes;
    };
    EXPECT_EQ(offered("FGenIntComputation", "getResults"), QStringList{"FMemberCmdFGenIntComputationgetResults"});
    EXPECT_EQ(offered("FGenIntComputation", "setConfiguration"),
              QStringList{"FAttribCmdFGenIntComputationsetConfigurationFConfigurationGenInt"});
    EXPECT_EQ(offered("FGenIntComputation", "setCmdFile"), QStringList{});
    EXPECT_EQ(offered("FConfigurationGenInt", "setDefinition"),
              QStringList{"FAttribCmdFConfigurationGenIntsetDefinitionFDefinitionGenInt"});
    EXPECT_EQ(offered("FGenIntResultsFile", "setForceWindowsLineEndings"),
              QStringList{"FAttribCmdFGenIntFilesetForceWindowsLineEndingsbool"});
}

TEST_F(CommandClassesTest, whatClassesHideExists) {
    EXPECT_EQ(FCmdManager::instance()->hiddenUnknownNames(),
              QStringList{"FAttribCmdFGenIntCommandFilesetForceWindowsLineEndingsbool"});
}

}  // namespace
