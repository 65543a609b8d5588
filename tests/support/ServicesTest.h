// The ground that unit tests stand on: fake services in force, process-wide state as at the start.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FakeHost.h"
#include "FakeServices.h"

namespace qutav::test {

class ServicesTest : public ::testing::Test {
 protected:
  ServicesTest();
  ~ServicesTest() override;

  FakeClock clock;
  MemoryFiles files;
  MemoryRegistry registry;
  FakeProcesses processes;
  FakeFolders folders;
  RecordingLanguage language;
  FakeThreads threads;
  FakeImages imageFiles;
  FakeFrontEnd frontEnd;
  FakeNetworkTables networkTables;
  FakeHost host;
};

/// A registry value under the product's key; empty without one.
std::u16string RegistryValue(const MemoryRegistry& registry, const std::u16string& name);

}  // namespace qutav::test
