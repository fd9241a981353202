.pragma library

// Colours and sizes of the palette and its windows; sizes in logical pixels.

const ink = "#3b3f46";
const inkMuted = "#7d838c";
const accent = "#F25017";
const paper = "#ffffff";
const hairline = "#d5d7db";
const separator = "#cccccc";
const separatorShade = "#33000000"; // the same on white

const buttonHover = "#dcdcdc";
const buttonPressed = "#aba9b2";
const rowHover = "#e0e0e0";
const disabledOpacity = 0.35;

const tipBackground = "#3b3f46";
const tipText = "#ffffff";
const danger = "#c42b1c";

const windowRadius = 10;
const bodyText = 13;
const titleText = 20;
