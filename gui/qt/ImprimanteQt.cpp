#include "gui/qt/ImprimanteQt.h"

#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <cmath>

#include "gui/qt/DCQt.h"

namespace {

constexpr double CentiemesParMm = 100.0;

int Centiemes(double mm) { return static_cast<int>(std::lround(mm * CentiemesParMm)); }

QPageSize Papier(const TDonneesImprimante& d) {
  return QPageSize(QSizeF(d.Papier.cx / CentiemesParMm, d.Papier.cy / CentiemesParMm), QPageSize::Millimeter);
}

// A job on a printer or in a PDF file, with one painter for the whole job. A file needs no
// printer, so it is written by Qt's PDF writer, which no printing system is asked about.
class TTravailQt : public TTravailImpression {
public:
  TTravailQt(const TDonneesImprimante& d, const std::string& titre) {
    const QString nom = QString::fromStdString(titre);
    if (!d.Fichier.empty()) {
      auto pdf = std::make_unique<QPdfWriter>(QString::fromStdString(d.Fichier));
      pdf->setResolution(TPeripheriqueQt::ResolutionPdf);
      // One copy, and no margin of its own: a page's margins are laid out by what is printed.
      pdf->setPageLayout(QPageLayout(Papier(d), d.Paysage ? QPageLayout::Landscape : QPageLayout::Portrait,
                                     QMarginsF(), QPageLayout::Millimeter));
      pdf->setTitle(nom);
      pdf->setCreator(QStringLiteral("Trajectoires"));
      resolution_ = pdf->resolution();
      peripherique_ = std::move(pdf);
    } else {
      auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
      VersQPrinter(d, *printer, false);
      printer->setDocName(nom);
      printer->setCreator(QStringLiteral("Trajectoires"));
      resolution_ = printer->resolution();
      peripherique_ = std::move(printer);
    }
  }
  bool Commence() {
    if (!painter_.begin(peripherique_.get())) return false;
    dc_ = std::make_unique<TDCQt>(&painter_);
    return true;
  }

  TDC& GetDC() override { return *dc_; }
  // The page within the margins the device keeps; the painter's origin is at its corner.
  TSize GetPageSize() const override {
    const QRect page = peripherique_->pageLayout().paintRectPixels(resolution_);
    return TSize{page.width(), page.height()};
  }
  bool NouvellePage() override {
    dc_->Reinitialise();
    return peripherique_->newPage();
  }
  bool Termine() override { return painter_.end(); }

private:
  std::unique_ptr<QPagedPaintDevice> peripherique_;
  int resolution_ = 0;
  QPainter painter_;
  std::unique_ptr<TDCQt> dc_;
};

}  // namespace

void VersQPrinter(const TDonneesImprimante& d, QPrinter& printer, bool marges) {
  if (!d.Fichier.empty()) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(d.Fichier));
  } else {
    printer.setOutputFormat(QPrinter::NativeFormat);
    if (!d.Imprimante.empty()) printer.setPrinterName(QString::fromStdString(d.Imprimante));
  }
  printer.setCopyCount(d.Copies);
  printer.setPageSize(Papier(d));
  printer.setPageOrientation(d.Paysage ? QPageLayout::Landscape : QPageLayout::Portrait);
  const QMarginsF m = marges ? QMarginsF(d.Marges.Gauche, d.Marges.Haut, d.Marges.Droite, d.Marges.Bas) /
                                   CentiemesParMm
                             : QMarginsF();
  // A printer keeps at least the margins it cannot print in.
  printer.setPageMargins(m, QPageLayout::Millimeter);
}

void DepuisQPrinter(const QPrinter& printer, TDonneesImprimante& d) {
  if (printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty()) {
    d.Fichier = printer.outputFileName().toStdString();
  } else {
    d.Fichier.clear();
    d.Imprimante = printer.printerName().toStdString();
  }
  d.Copies = printer.copyCount();
  const QPageLayout page = printer.pageLayout();
  const QSizeF papier = page.pageSize().size(QPageSize::Millimeter);
  d.Papier = TSize{Centiemes(papier.width()), Centiemes(papier.height())};
  d.Paysage = page.orientation() == QPageLayout::Landscape;
  const QMarginsF m = page.margins(QPageLayout::Millimeter);
  d.Marges = TMarges{Centiemes(m.left()), Centiemes(m.top()), Centiemes(m.right()), Centiemes(m.bottom())};
}

std::unique_ptr<TTravailImpression> TPeripheriqueQt::Commence(const TDonneesImprimante& donnees,
                                                              const std::string& titre) {
  auto travail = std::make_unique<TTravailQt>(donnees, titre);
  if (!travail->Commence()) return nullptr;
  return travail;
}
