#include "gui/video/MusiqueFFmpeg.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libswresample/swresample.h>
}

#include "platform/EncodeurVideo.h"

namespace {
struct TDecodage {
  AVFormatContext* Format = nullptr;
  AVCodecContext* Codec = nullptr;
  SwrContext* Conversion = nullptr;
  AVPacket* Paquet = av_packet_alloc();
  AVFrame* Trame = av_frame_alloc();
  ~TDecodage() {
    avformat_close_input(&Format);
    avcodec_free_context(&Codec);
    swr_free(&Conversion);
    av_packet_free(&Paquet);
    av_frame_free(&Trame);
  }

  // Converts what the decoder has ready (null trame: what the resampler holds back).
  bool Convertit(AVFrame* trame, std::vector<float>& stereo) {
    const int entree = trame ? trame->nb_samples : 0;
    const int place = swr_get_out_samples(Conversion, entree);
    if (place < 0) return false;
    const std::size_t avant = stereo.size();
    stereo.resize(avant + 2 * static_cast<std::size_t>(place));
    uint8_t* sortie[] = {reinterpret_cast<uint8_t*>(stereo.data() + avant)};
    const int n = swr_convert(Conversion, sortie, place, trame ? const_cast<const uint8_t**>(trame->extended_data) : nullptr,
                              entree);
    if (n < 0) return false;
    stereo.resize(avant + 2 * static_cast<std::size_t>(n));
    return true;
  }

  bool Vide(std::vector<float>& stereo) {
    int r;
    while ((r = avcodec_receive_frame(Codec, Trame)) >= 0) {
      const bool bon = Convertit(Trame, stereo);
      av_frame_unref(Trame);
      if (!bon) return false;
    }
    return r == AVERROR(EAGAIN) || r == AVERROR_EOF;
  }
};
}  // namespace

bool DecodeMusique(const std::string& chemin, std::vector<float>& stereo, std::string& erreur) {
  stereo.clear();
  av_log_set_level(AV_LOG_QUIET);
  erreur = "musique « " + chemin + " » illisible : ce n'est pas un fichier WAV que le lecteur sait jouer";
  TDecodage d;
  // Only what the player plays: a WAV, whatever its name.
  if (avformat_open_input(&d.Format, chemin.c_str(), av_find_input_format("wav"), nullptr) < 0) return false;
  if (avformat_find_stream_info(d.Format, nullptr) < 0) return false;
  const AVCodec* codec = nullptr;
  const int flux = av_find_best_stream(d.Format, AVMEDIA_TYPE_AUDIO, -1, -1, &codec, 0);
  if (flux < 0 || !codec) return false;
  d.Codec = avcodec_alloc_context3(codec);
  if (avcodec_parameters_to_context(d.Codec, d.Format->streams[flux]->codecpar) < 0 ||
      avcodec_open2(d.Codec, codec, nullptr) < 0 || d.Codec->sample_rate <= 0 || d.Codec->ch_layout.nb_channels <= 0)
    return false;
  // A WAV with no channel mask: the usual order for its count.
  AVChannelLayout entree;
  if (d.Codec->ch_layout.order == AV_CHANNEL_ORDER_UNSPEC) av_channel_layout_default(&entree, d.Codec->ch_layout.nb_channels);
  else av_channel_layout_copy(&entree, &d.Codec->ch_layout);
  AVChannelLayout sortie;
  av_channel_layout_default(&sortie, 2);
  const int r = swr_alloc_set_opts2(&d.Conversion, &sortie, AV_SAMPLE_FMT_FLT, FREQUENCE_FILM, &entree,
                                    d.Codec->sample_fmt, d.Codec->sample_rate, 0, nullptr);
  av_channel_layout_uninit(&entree);
  if (r < 0 || swr_init(d.Conversion) < 0) return false;
  while (av_read_frame(d.Format, d.Paquet) >= 0) {
    const bool bon = d.Paquet->stream_index != flux || avcodec_send_packet(d.Codec, d.Paquet) >= 0;
    av_packet_unref(d.Paquet);
    if (!bon || !d.Vide(stereo)) return false;
  }
  if (avcodec_send_packet(d.Codec, nullptr) < 0 || !d.Vide(stereo) || !d.Convertit(nullptr, stereo)) return false;
  erreur.clear();
  return true;
}
