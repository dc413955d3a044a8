// The document logic of SVGFigurer, without any user interface:
//
//   SVGFigurerConfiguration.h  the fourteen user settings, their JSON, the exporter mapping
//   ConfigurationDefaults.h    the default settings for new documents and their persistence
//   DefaultsStore.h            the key-value store under the user's configuration folder
//   SVGFigurerDocument.h       the document, its rebuild rule, observers and undo hook
//   Generation.h               generateSwift and makeSnapshot
//   Snapshot.h                 the stored form of a document and its JSON
//   DocumentFile.h             file kinds by extension and reading a file into a snapshot
//   PendingDocumentQueue.h     content waiting for the next new document
//   ExampleCatalogue.h         the sample SVGs
//   AtomicFile.h               whole-file replacement
#pragma once

#include "SVGFigurerApp/AtomicFile.h"
#include "SVGFigurerApp/ConfigurationDefaults.h"
#include "SVGFigurerApp/DefaultsStore.h"
#include "SVGFigurerApp/DocumentFile.h"
#include "SVGFigurerApp/ExampleCatalogue.h"
#include "SVGFigurerApp/Generation.h"
#include "SVGFigurerApp/PendingDocumentQueue.h"
#include "SVGFigurerApp/SVGFigurerConfiguration.h"
#include "SVGFigurerApp/SVGFigurerDocument.h"
#include "SVGFigurerApp/Snapshot.h"
