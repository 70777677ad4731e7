// What the views are told live and from the log is the same.
#include <sstream>

#include "tests/session/LogSessionHelper.h"

namespace corvex::test {
namespace {

class ReplayTest : public LogSessionTest {
protected:
    ReplayTest() {
        recorder.ShowDashAndList(true);
        recorder.onReplyEnded = [this](const DataAcqStatus& status, PacketView reply) {
            KeepSample(status, reply);
            if (status.source == 0 && ++replies_ == 12) session.scanning = 0;
        };
    }

    // The reply and all that can be read from the session when it has been taken.
    void KeepSample(const DataAcqStatus& status, PacketView reply) {
        const LastPacket last = session.CopyLastPacket();
        std::ostringstream sample;
        sample << IdText(*session.definition.FindByHash(status.commandId)) << ' ' << status.code << " reply";
        for (std::uint32_t i = 0; i < reply.Size(); ++i)
            sample << ' ' << unsigned{reply.Bytes()[i]};
        sample << " packet";
        for (std::uint32_t i = 0; i < last.size; ++i)
            sample << ' ' << unsigned{last.bytes[i]};
        sample << " value " << value->GetRaw(nullptr);
        samples_.push_back(sample.str());
    }
    // The calls of the views alone, without the charts' times.
    Calls TakeViews() {
        Calls views;
        for (std::string call : recorder.Take()) {
            if (call.starts_with("monitor time ")) continue;
            if (call.starts_with("monitor ")) call.erase(8, call.find(' ', 8) - 8);
            for (const char* view : {"dash ", "list", "histograms ", "monitor "})
                if (call.starts_with(view)) views.push_back(call);
        }
        return views;
    }
    Calls TakeSamples() { return std::exchange(samples_, {}); }

    ADXValue* value = nullptr;

private:
    Calls samples_;  // one thread at a time
    int replies_ = 0;
};

TEST_F(ReplayTest, LogTellsTheViewsWhatTheLineDid) {
    auto* other = AddSend(session.definition, "OTHER", {0xB0}, 5);
    other->packetoffset = 2;
    other->packetsize = 3;
    serial.Answer({0xB0}, {9, 8, 7, 6, 5}, 7);
    session.definition.monitorcmd = AddMacro(session.definition, "MACRO", {monitor, other});
    value = Add<ADXValue>(session.definition, "VALUE");
    value->packetoffset = 1;
    AnswerAll();
    session.RecordCommand();
    Scan();
    Calls samples = TakeSamples(), views = TakeViews();
    ASSERT_LT(10U, samples.size());
    recorder.answer = folder.Name("drive.xdl");
    session.StopCommand();
    recorder.Take();
    ForgetPosts();

    // Away with what the line left.
    session.StoreLastPacket({});
    clock.SetStep(1000);
    session.PlayCommand();
    ASSERT_TRUE(Rests(kLogClosed));
    EXPECT_EQ(samples, TakeSamples());
    EXPECT_EQ(views, TakeViews());
}

}  // namespace
}  // namespace corvex::test
