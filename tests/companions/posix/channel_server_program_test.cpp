// Runs the channel-server program as a station engineer does.
#include <gtest/gtest.h>

#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>
#include <asio/read.hpp>
#include <asio/write.hpp>
#include <string>
#include <vector>

#include "support/child_program.h"
#include "support/temp_directory.h"

namespace {

TEST(ChannelServerProgram, ShowsRecordsAndInjectsTraffic) {
  const merovane::test::TempDirectory directory;
  merovane::test::ChildProgram program(
      {CHANNEL_SERVER, "--port", "0", "--log", (directory / "traffic.log").string()});
  const std::string address = "listening on 127.0.0.1:";
  const std::string listening = program.Line();
  ASSERT_TRUE(listening.starts_with(address));

  asio::io_context context;
  const auto port = static_cast<std::uint16_t>(std::stoi(listening.substr(address.size())));
  std::vector<asio::ip::tcp::socket> clients;
  for (const char* connected : {"client 1 connected", "client 2 connected"}) {
    clients.emplace_back(context).connect({asio::ip::address_v4::loopback(), port});
    EXPECT_NE(program.Line(connected), "");
  }
  asio::write(clients[0], asio::buffer("OK\r\n", 4));
  EXPECT_NE(program.Line("from client 1 4 bytes"), "");
  EXPECT_NE(program.Line("4f 4b 0d 0a").find("|OK..|"), std::string::npos);

  program.Type("no data\n\n7e 00\ntext:AT\\r\n");
  for (auto& client : clients) {
    std::string received(5, '\0');
    asio::read(client, asio::buffer(received));
    EXPECT_EQ(received, std::string("\x7E\0AT\r", 5));
  }
  clients[0].close();
  EXPECT_NE(program.Line("client 1 disconnected"), "");
  EXPECT_EQ(program.Kill(SIGTERM), 0);
  const std::string recorded = merovane::test::FileText(directory / "traffic.log");
  EXPECT_NE(recorded.find("|OK..|"), std::string::npos);
  EXPECT_NE(recorded.find("|AT.|"), std::string::npos);
}

}  // namespace
