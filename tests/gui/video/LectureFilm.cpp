#include "LectureFilm.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}

namespace {
struct TLecture {
  AVFormatContext* Format = nullptr;
  AVCodecContext* Codecs[2] = {nullptr, nullptr};
  AVPacket* Paquet = av_packet_alloc();
  AVFrame* Trame = av_frame_alloc();
  ~TLecture() {
    for (AVCodecContext*& c : Codecs) avcodec_free_context(&c);
    avformat_close_input(&Format);
    av_packet_free(&Paquet);
    av_frame_free(&Trame);
  }
};

QImage EnRgb(const AVFrame* t) {
  QImage image(t->width, t->height, QImage::Format_RGB32);
  SwsContext* c = sws_getContext(t->width, t->height, static_cast<AVPixelFormat>(t->format), t->width, t->height,
                                 AV_PIX_FMT_BGRA, SWS_BILINEAR, nullptr, nullptr, nullptr);
  uint8_t* sortie[] = {image.bits()};
  const int pas[] = {static_cast<int>(image.bytesPerLine())};
  sws_scale(c, t->data, t->linesize, 0, t->height, sortie, pas);
  sws_freeContext(c);
  return image;
}
}  // namespace

TFilmLu LitFilm(const std::string& chemin, int image) {
  av_log_set_level(AV_LOG_QUIET);
  TFilmLu lu;
  TLecture l;
  if (avformat_open_input(&l.Format, chemin.c_str(), nullptr, nullptr) < 0 ||
      avformat_find_stream_info(l.Format, nullptr) < 0)
    return lu;
  int flux[2] = {-1, -1};
  for (unsigned i = 0; i < l.Format->nb_streams; ++i) {
    const AVCodecParameters* p = l.Format->streams[i]->codecpar;
    const int k = p->codec_type == AVMEDIA_TYPE_VIDEO ? 0 : p->codec_type == AVMEDIA_TYPE_AUDIO ? 1 : -1;
    if (k < 0 || flux[k] >= 0) return lu;  // one stream of each kind at most
    flux[k] = static_cast<int>(i);
    const AVCodec* codec = avcodec_find_decoder(p->codec_id);
    l.Codecs[k] = avcodec_alloc_context3(codec);
    if (!codec || avcodec_parameters_to_context(l.Codecs[k], p) < 0 || avcodec_open2(l.Codecs[k], codec, nullptr) < 0)
      return lu;
    (k == 0 ? lu.CodecVideo : lu.CodecSon) = avcodec_get_name(p->codec_id);
    if (k == 0) {
      lu.Largeur = p->width;
      lu.Hauteur = p->height;
    } else {
      lu.FrequenceSon = p->sample_rate;
      lu.CanauxSon = p->ch_layout.nb_channels;
      lu.BlocSon = p->frame_size;
    }
  }
  const auto recoit = [&](int k) {
    while (avcodec_receive_frame(l.Codecs[k], l.Trame) >= 0) {
      if (k == 0) {
        if (lu.Images == image) lu.Image = EnRgb(l.Trame);
        ++lu.Images;
      } else {
        lu.Echantillons += l.Trame->nb_samples;
      }
      av_frame_unref(l.Trame);
    }
  };
  while (av_read_frame(l.Format, l.Paquet) >= 0) {
    for (int k = 0; k < 2; ++k)
      if (l.Paquet->stream_index == flux[k] && avcodec_send_packet(l.Codecs[k], l.Paquet) >= 0) recoit(k);
    av_packet_unref(l.Paquet);
  }
  for (int k = 0; k < 2; ++k)
    if (l.Codecs[k] && avcodec_send_packet(l.Codecs[k], nullptr) >= 0) recoit(k);
  lu.Lisible = true;
  return lu;
}
