.pragma library

// The flyouts of the palette: their rows, the kind of their rows and the height at which they open
// below the palette's top edge, before scaling.

function icons(names) {
    return names.map(name => "qrc:/icons/" + name + ".png");
}

const pictureRows = 1;
const textRows = 2;

const table = {
    pen: { seY: 85, btnType: pictureRows, rows: icons(["pen", "ygpen", "text"]) },
    shape: { seY: 120, btnType: pictureRows,
             rows: icons(["line", "circle", "jiantou", "rect", "munber"]) },
    history: { seY: 280, btnType: pictureRows, rows: icons(["chexiao", "fanhui"]) },
    board: { seY: 390, btnType: pictureRows,
             rows: icons(["draw", "whiteBorad", "blackBoard", "tuku"]) },
    thickness: { seY: 550, btnType: pictureRows, rows: icons(["a", "b", "c", "d"]) },
    fade: { seY: 580, btnType: pictureRows,
            rows: icons(["timer", "timer3", "timer5", "timer10", "timer30"]) },
    breath: { seY: 600, btnType: pictureRows, rows: icons(["re", "re3", "re5", "re10"]) },
    // Its rows are texts, which change with the language.
    menu: { seY: 635, btnType: textRows },
};
