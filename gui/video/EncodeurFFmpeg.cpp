#include "gui/video/EncodeurFFmpeg.h"

#include <vector>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
#include <libswscale/swscale.h>
}

namespace {
// The libraries' messages are English: the usual causes said in French, the others by number.
std::string TexteErreur(int code) {
  switch (code) {
    case AVERROR(ENOSPC): return "disque plein";
    case AVERROR(EACCES):
    case AVERROR(EPERM): return "permission refusée";
    case AVERROR(ENOENT): return "dossier introuvable";
    case AVERROR(ENOMEM): return "mémoire insuffisante";
    case AVERROR(EIO): return "erreur d'entrée-sortie";
    default: return "erreur FFmpeg " + std::to_string(code);
  }
}

// The first of these encoders that the system's libraries hold.
const AVCodec* Encodeur(std::initializer_list<const char*> noms) {
  for (const char* nom : noms)
    if (const AVCodec* c = avcodec_find_encoder_by_name(nom)) return c;
  return nullptr;
}
}  // namespace

struct TEncodeurFFmpeg::TEtat {
  AVFormatContext* Format = nullptr;
  AVCodecContext* Video = nullptr;
  AVCodecContext* Audio = nullptr;
  AVStream* FluxVideo = nullptr;
  AVStream* FluxAudio = nullptr;
  SwsContext* Conversion = nullptr;
  SwrContext* Reechantillonnage = nullptr;
  AVFrame* Image = nullptr;
  AVFrame* Bloc = nullptr;
  AVPacket* Paquet = nullptr;
  std::vector<float> Attente;  // stereo samples not yet a whole block
  long long ImagesEcrites = 0, EchantillonsEcrits = 0;
  bool EnTete = false;

  ~TEtat() {
    if (Format && Format->pb) avio_closep(&Format->pb);
    avformat_free_context(Format);
    avcodec_free_context(&Video);
    avcodec_free_context(&Audio);
    sws_freeContext(Conversion);
    swr_free(&Reechantillonnage);
    av_frame_free(&Image);
    av_frame_free(&Bloc);
    av_packet_free(&Paquet);
  }

  // Sends one frame (null: the end) and writes every packet the encoder gives back.
  bool Envoie(AVCodecContext* c, AVStream* flux, AVFrame* trame, std::string& erreur) {
    int r = avcodec_send_frame(c, trame);
    if (r < 0) {
      erreur = "encodage impossible : " + TexteErreur(r);
      return false;
    }
    while ((r = avcodec_receive_packet(c, Paquet)) >= 0) {
      av_packet_rescale_ts(Paquet, c->time_base, flux->time_base);
      Paquet->stream_index = flux->index;
      r = av_interleaved_write_frame(Format, Paquet);
      if (r < 0) {
        erreur = "écriture du film impossible : " + TexteErreur(r);
        return false;
      }
    }
    if (r != AVERROR(EAGAIN) && r != AVERROR_EOF) {
      erreur = "encodage impossible : " + TexteErreur(r);
      return false;
    }
    return true;
  }

  // One block of `nb` samples from the start of Attente.
  bool EnvoieBloc(int nb, std::string& erreur) {
    int r = av_frame_make_writable(Bloc);
    Bloc->nb_samples = nb;
    const uint8_t* entree[] = {reinterpret_cast<const uint8_t*>(Attente.data())};
    if (r >= 0) r = swr_convert(Reechantillonnage, Bloc->data, nb, entree, nb);
    if (r < 0) {
      erreur = "conversion du son impossible : " + TexteErreur(r);
      return false;
    }
    Bloc->pts = EchantillonsEcrits;
    EchantillonsEcrits += nb;
    Attente.erase(Attente.begin(), Attente.begin() + 2 * nb);
    return Envoie(Audio, FluxAudio, Bloc, erreur);
  }
};

TEncodeurFFmpeg::TEncodeurFFmpeg() = default;
TEncodeurFFmpeg::~TEncodeurFFmpeg() = default;

bool TEncodeurFFmpeg::Ouvre(const std::string& chemin, const TFormatFilm& format, std::string& erreur) {
  // What goes wrong is said by our own messages; the libraries' chatter would bury them.
  av_log_set_level(AV_LOG_QUIET);
  etat_ = std::make_unique<TEtat>();
  TEtat& e = *etat_;
  const bool mp4 = format.Conteneur == TConteneur::Mp4;
  const AVCodec* video = mp4 ? Encodeur({"libx264", "h264"}) : Encodeur({"libvpx-vp9", "vp9"});
  const AVCodec* audio = mp4 ? Encodeur({"aac", "libfdk_aac"}) : Encodeur({"libopus", "opus"});
  if (!video || (format.AvecSon && !audio)) {
    erreur = std::string("l'encodeur ") + (!video ? (mp4 ? "H.264" : "VP9") : (mp4 ? "AAC" : "Opus")) +
             " manque aux bibliothèques FFmpeg du système";
    return false;
  }
  int r = avformat_alloc_output_context2(&e.Format, nullptr, mp4 ? "mp4" : "webm", chemin.c_str());
  if (r < 0 || !e.Format) {
    erreur = "format de film indisponible : " + TexteErreur(r);
    return false;
  }
  e.Paquet = av_packet_alloc();

  e.Video = avcodec_alloc_context3(video);
  e.Video->width = format.Largeur;
  e.Video->height = format.Hauteur;
  e.Video->time_base = AVRational{1, format.Fps};
  e.Video->framerate = AVRational{format.Fps, 1};
  e.Video->pix_fmt = AV_PIX_FMT_YUV420P;
  e.Video->gop_size = 2 * format.Fps;
  // libswscale's default matrix, said in the file so that players undo it the same way.
  e.Video->colorspace = AVCOL_SPC_SMPTE170M;
  e.Video->color_range = AVCOL_RANGE_MPEG;
  if (e.Format->oformat->flags & AVFMT_GLOBALHEADER) e.Video->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
  // Constant quality, at a speed that keeps a 3-minute film under 3 minutes on two cores.
  if (mp4) {
    av_opt_set(e.Video->priv_data, "crf", "23", 0);
    av_opt_set(e.Video->priv_data, "preset", "veryfast", 0);
  } else {
    e.Video->bit_rate = 0;
    av_opt_set(e.Video->priv_data, "crf", "33", 0);
    av_opt_set(e.Video->priv_data, "deadline", "realtime", 0);
    av_opt_set(e.Video->priv_data, "cpu-used", "8", 0);
    av_opt_set(e.Video->priv_data, "row-mt", "1", 0);
  }
  if ((r = avcodec_open2(e.Video, video, nullptr)) < 0) {
    erreur = "ouverture de l'encodeur vidéo impossible : " + TexteErreur(r);
    return false;
  }
  e.FluxVideo = avformat_new_stream(e.Format, nullptr);
  avcodec_parameters_from_context(e.FluxVideo->codecpar, e.Video);
  e.FluxVideo->time_base = e.Video->time_base;
  e.FluxVideo->avg_frame_rate = e.Video->framerate;
  e.Image = av_frame_alloc();
  e.Image->format = AV_PIX_FMT_YUV420P;
  e.Image->width = format.Largeur;
  e.Image->height = format.Hauteur;
  e.Conversion = sws_getContext(format.Largeur, format.Hauteur, AV_PIX_FMT_RGBA, format.Largeur, format.Hauteur,
                                AV_PIX_FMT_YUV420P, SWS_BILINEAR, nullptr, nullptr, nullptr);
  if (av_frame_get_buffer(e.Image, 0) < 0 || !e.Conversion) {
    erreur = "mémoire insuffisante pour les images du film";
    return false;
  }

  if (format.AvecSon) {
    e.Audio = avcodec_alloc_context3(audio);
    e.Audio->sample_rate = FREQUENCE_FILM;
    e.Audio->time_base = AVRational{1, FREQUENCE_FILM};
    av_channel_layout_default(&e.Audio->ch_layout, 2);
    // The encoder's own sample format: the first it lists.
    e.Audio->sample_fmt = audio->sample_fmts ? audio->sample_fmts[0] : AV_SAMPLE_FMT_FLTP;
    e.Audio->bit_rate = mp4 ? 160000 : 128000;
    if (e.Format->oformat->flags & AVFMT_GLOBALHEADER) e.Audio->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    if ((r = avcodec_open2(e.Audio, audio, nullptr)) < 0) {
      erreur = "ouverture de l'encodeur audio impossible : " + TexteErreur(r);
      return false;
    }
    e.FluxAudio = avformat_new_stream(e.Format, nullptr);
    avcodec_parameters_from_context(e.FluxAudio->codecpar, e.Audio);
    e.FluxAudio->time_base = e.Audio->time_base;
    AVChannelLayout stereo;
    av_channel_layout_default(&stereo, 2);
    r = swr_alloc_set_opts2(&e.Reechantillonnage, &e.Audio->ch_layout, e.Audio->sample_fmt, FREQUENCE_FILM,
                            &stereo, AV_SAMPLE_FMT_FLT, FREQUENCE_FILM, 0, nullptr);
    if (r < 0 || swr_init(e.Reechantillonnage) < 0) {
      erreur = "conversion du son impossible";
      return false;
    }
    e.Bloc = av_frame_alloc();
    e.Bloc->format = e.Audio->sample_fmt;
    av_channel_layout_copy(&e.Bloc->ch_layout, &e.Audio->ch_layout);
    e.Bloc->sample_rate = FREQUENCE_FILM;
    e.Bloc->nb_samples = e.Audio->frame_size > 0 ? e.Audio->frame_size : 1024;
    if (av_frame_get_buffer(e.Bloc, 0) < 0) {
      erreur = "mémoire insuffisante pour le son du film";
      return false;
    }
  }

  if ((r = avio_open(&e.Format->pb, chemin.c_str(), AVIO_FLAG_WRITE)) < 0) {
    erreur = "impossible d'écrire « " + chemin + " » : " + TexteErreur(r);
    return false;
  }
  if ((r = avformat_write_header(e.Format, nullptr)) < 0) {
    erreur = "écriture du film impossible : " + TexteErreur(r);
    return false;
  }
  e.EnTete = true;
  return true;
}

bool TEncodeurFFmpeg::AjouteImage(const unsigned char* rgba, int pas, std::string& erreur) {
  TEtat& e = *etat_;
  if (av_frame_make_writable(e.Image) < 0) {
    erreur = "mémoire insuffisante";
    return false;
  }
  const uint8_t* source[] = {rgba};
  const int pasSource[] = {pas};
  sws_scale(e.Conversion, source, pasSource, 0, e.Video->height, e.Image->data, e.Image->linesize);
  e.Image->pts = e.ImagesEcrites++;
  return e.Envoie(e.Video, e.FluxVideo, e.Image, erreur);
}

bool TEncodeurFFmpeg::AjouteSon(const float* stereo, int nb, std::string& erreur) {
  TEtat& e = *etat_;
  e.Attente.insert(e.Attente.end(), stereo, stereo + 2 * nb);
  const int bloc = e.Audio->frame_size > 0 ? e.Audio->frame_size : 1024;
  while (static_cast<int>(e.Attente.size() / 2) >= bloc)
    if (!e.EnvoieBloc(bloc, erreur)) return false;
  return true;
}

bool TEncodeurFFmpeg::Termine(std::string& erreur) {
  TEtat& e = *etat_;
  // The last, shorter block of sound: every encoder takes one at the end.
  if (e.Audio && !e.Attente.empty() && !e.EnvoieBloc(static_cast<int>(e.Attente.size() / 2), erreur)) return false;
  if (!e.Envoie(e.Video, e.FluxVideo, nullptr, erreur)) return false;
  if (e.Audio && !e.Envoie(e.Audio, e.FluxAudio, nullptr, erreur)) return false;
  int r = av_write_trailer(e.Format);
  // A full disk shows in the output's error, kept from the first write that failed.
  if (r >= 0) avio_flush(e.Format->pb);
  if (r >= 0 && e.Format->pb->error < 0) r = e.Format->pb->error;
  if (r >= 0) r = avio_closep(&e.Format->pb);
  if (r < 0) {
    erreur = "écriture du film impossible : " + TexteErreur(r);
    return false;
  }
  return true;
}
