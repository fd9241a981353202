#include "recorder/notes.h"
#include "recorder/recorderprotocol.h"
#include "recorder/recording.h"
#include "recorder/recordingrequest.h"
#include "recorder/stoprequest.h"

#include <QCoreApplication>

namespace
{

constexpr int kFailed = 1;
constexpr int kWronglyCalled = 2;

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const StopRequest stopRequest;

    RecordingRequest request;
    QString reason;
    if (!RecordingRequest::parse(QCoreApplication::arguments().mid(1), &request, &reason)) {
        Notes::error(RecorderProtocol::Code::kUsage, reason);
        return kWronglyCalled;
    }
    Recording recording;
    QObject::connect(&stopRequest, &StopRequest::requested, &recording, &Recording::stop);
    QObject::connect(&recording, &Recording::finished, &application,
        [](bool succeeded) { QCoreApplication::exit(succeeded ? 0 : kFailed); });
    if (!recording.start(request))
        return kFailed;
    return QCoreApplication::exec();
}
