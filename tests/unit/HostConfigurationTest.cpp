#include "ServicesTest.h"
#include "support/HostConfiguration.h"
#include "win/DocumentPaths.h"

namespace qutav::test {
namespace {

class HostConfigurationTest : public ServicesTest {
 protected:
  HostConfigurationTest() { DocumentPaths.LaunchPath = u"C:/host/"; }
};

TEST_F(HostConfigurationTest, LiesInTheFolderOfTheHostsLanguage) {
  host.languageCode = u"de_DE";

  EXPECT_EQ(HostConfigurationFile(u"Markets.xml"),
            u"C:\\host\\de_DE\\configuration\\Android\\Markets.xml");
}

TEST_F(HostConfigurationTest, AHostWithoutALanguageHasNoSuchFolderInThePath) {
  host.languageCode = u"0";

  EXPECT_EQ(HostConfigurationFile(u"Markets.xml"),
            u"C:\\host\\\\configuration\\Android\\Markets.xml");
}

}  // namespace
}  // namespace qutav::test
