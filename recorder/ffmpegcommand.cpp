#include "recorder/ffmpegcommand.h"

namespace
{

constexpr int kFramesPerSecond = 30;

/// Quality at which small text stays readable, at a speed that leaves the desktop its processor.
/// Nothing is held back in the encoder, so that a recorder that dies leaves all but the last
/// moments on disk; without B frames picture and sound begin at the same time.
constexpr char kVideoEncoder[] = "-c:v libx264 -preset %1 -tune zerolatency -crf 20 -bf 0 -g 30";

/// From this many pixels on, an ordinary processor keeps up with thirty pictures a second only by
/// spending more of the disk.
constexpr int kManyPixels = 2560 * 1600;

/// Players that are not told take a small picture for BT.601 and a large one for BT.709; so every
/// picture is made BT.709, the usual one of screens, and says so.
constexpr char kColours[] = "-colorspace bt709 -color_primaries bt709 -color_trc bt709"
                            " -color_range tv";

constexpr char kSoundEncoder[] = "-c:a aac -b:a 160k";

/// Fragments of half a second, each flushed to disk: the file plays however the recording ends.
/// A sound source that falls behind never keeps pictures from being written.
constexpr char kContainer[] = "-max_muxing_queue_size 9000 -max_interleave_delta 500000"
                              " -frag_duration 500000 -flush_packets 1"
                              " -movflags +frag_keyframe+empty_moov+default_base_moof -f mp4";

/// Inputs are used as soon as they open. FFmpeg would otherwise wait for the first sound before
/// it takes the first picture, and a source that stays silent would hold up everything.
constexpr char kStartAtOnce[] = "-probesize 32 -analyzeduration 0 -max_ts_probe 0";

/// Pictures wait in memory, uncompressed, only as long as the encoder takes for a few.
constexpr char kPictureQueue[] = "-thread_queue_size 8";
constexpr char kSoundQueue[] = "-thread_queue_size 1024";

QStringList words(const QString &text)
{
    return text.split(u' ');
}

QStringList words(const char *text)
{
    return words(QString::fromLatin1(text));
}

} // namespace

QStringList FfmpegCommand::arguments() const
{
    QStringList list = words("-hide_banner -nostats -loglevel error -y");
    // Wall-clock times pass through and are moved to the recording's zero, so that inputs which
    // open at different moments stay in step. The clocks of Windows' grabbers do not compare.
    if (grabber == ScreenGrabber::X11)
        list << words("-nostdin -copyts") << words(kStartAtOnce)
             << words(QStringLiteral("-itsoffset %1").arg(-epochSeconds, 0, 'f', 6));
    list << words(kPictureQueue) << pictureInput();
    for (const SoundInput &input : sound) {
        if (grabber == ScreenGrabber::X11)
            list << words(kStartAtOnce);
        list << words(kSoundQueue) << input.options << QStringLiteral("-i") << input.source;
    }
    list << QStringLiteral("-filter_complex") << filterGraph() << words("-map [v]")
         << words(QString::fromLatin1(kVideoEncoder).arg(preset())) << words(kColours);
    if (!sound.isEmpty())
        list << words("-map [a]") << words(kSoundEncoder);
    return list << words(kContainer) << outputPath;
}

QStringList FfmpegCommand::pictureInput() const
{
    QStringList list = words(QStringLiteral("-framerate %1 -draw_mouse 1 -video_size %2x%3")
                                 .arg(kFramesPerSecond)
                                 .arg(areaPx.width())
                                 .arg(areaPx.height()));
    const bool x11 = grabber == ScreenGrabber::X11;
    const QString position = x11 ? QStringLiteral("-grab_x %1 -grab_y %2 -f x11grab")
                                 : QStringLiteral("-offset_x %1 -offset_y %2 -f gdigrab");
    list << words(position.arg(areaPx.x()).arg(areaPx.y()));
    return list << QStringLiteral("-i") << (x11 ? display : QStringLiteral("desktop"));
}

QString FfmpegCommand::preset() const
{
    const bool isLarge = areaPx.width() * areaPx.height() > kManyPixels;
    return isLarge ? QStringLiteral("ultrafast") : QStringLiteral("veryfast");
}

/// Video from the first input, whatever follows mixed into one sound track. Gaps in time become
/// repeated pictures and silence, from the recording's zero on. A picture shows what happened in
/// the thirtieth of a second before it was taken; rounded down, its time is right on average, and
/// sound is never more than one picture away from it.
QString FfmpegCommand::filterGraph() const
{
    QString graph = QStringLiteral("[0:v]fps=%1:start_time=0:round=down,"
                                   "scale=out_color_matrix=bt709:out_range=tv,format=yuv420p[v]")
                        .arg(kFramesPerSecond);
    if (sound.isEmpty())
        return graph;
    QString labels;
    for (qsizetype i = 1; i <= sound.size(); ++i) {
        graph += QStringLiteral(";[%1:a]aresample=48000:async=1000:first_pts=0[s%1]").arg(i);
        labels += QStringLiteral("[s%1]").arg(i);
    }
    const QString mix = sound.size() == 1
        ? QStringLiteral("anull")
        : QStringLiteral("amix=inputs=%1:normalize=0").arg(sound.size());
    return graph + u';' + labels + mix + QStringLiteral("[a]");
}
