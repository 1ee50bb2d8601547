#pragma once
// The video encoder on FFmpeg's libraries, in the process: H.264 and AAC in MP4, VP9 and Opus
// in WebM, the pictures converted to yuv420p by libswscale.
#include <memory>

#include "platform/EncodeurVideo.h"

class TEncodeurFFmpeg : public TEncodeurVideo {
public:
  TEncodeurFFmpeg();
  ~TEncodeurFFmpeg() override;
  bool Ouvre(const std::string& chemin, const TFormatFilm& format, std::string& erreur) override;
  bool AjouteImage(const unsigned char* rgba, int pas, std::string& erreur) override;
  bool AjouteSon(const float* stereo, int nb, std::string& erreur) override;
  bool Termine(std::string& erreur) override;

private:
  struct TEtat;
  std::unique_ptr<TEtat> etat_;
};
