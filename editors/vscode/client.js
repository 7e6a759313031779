// Starts `zelvor language-server` and connects it with the editor.
const { workspace } = require("vscode");
const { LanguageClient, TransportKind } = require("vscode-languageclient/node");

let client;

exports.activate = function activate() {
  const command = workspace.getConfiguration("zelvor").get("program");
  client = new LanguageClient(
    "zelvor",
    "Zelvor Cards",
    { command, args: ["language-server"], transport: TransportKind.stdio },
    {
      documentSelector: [{ scheme: "file", language: "zelvor" }],
      synchronize: { fileEvents: workspace.createFileSystemWatcher("**/MODULES/QRD_*/**") },
    },
  );
  return client.start();
};

exports.deactivate = function deactivate() {
  return client ? client.stop() : undefined;
};
