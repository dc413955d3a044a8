// SVG
struct Group1: View {

    static let intrinsicSize = CGSize(width: 120, height: 80)

    static let fade = LinearGradient(
        gradient: .init(colors: [
            .init(red: 0, green: 0, blue: 0), .init(white: 1)
        ]),
        startPoint: .leading, endPoint: .trailing
    )

    struct Soft: ViewModifier {

        func body(content: Content) -> some View {
            content // SourceGraphic
                .blur(radius: 1) // feGaussianBlur
        }
    }

    struct PathView1: View { // SVGPath
        struct PathShape1: Shape {
            func path(in rect: CGRect) -> Path {
                Path { path in
                    path.addLines([
                        .init(x: 1, y: 1),
                        .init(x: 5, y: 1),
                        .init(x: 5, y: 5)
                    ])
                    path.closeSubpath()

                    path.move(to: .init(x: 7, y: 7))
                    path.addLine(to: .init(x: 9, y: 9))
                    path.closeSubpath()
                }
            }
        }

        var body: some View {
            ZStack {
                PathShape1()
                    .fill(Color(red: 1, green: 1, blue: 0))
                PathShape1()
                    .stroke(Color.black, style: .init(lineCap: .square))
            }
            .modifier(Soft())
        }
    }

    struct Reactangle1: View {

        static let intrinsicSize = CGSize(width: 20, height: 20)
        static let origin        = CGPoint(x: 10, y: 10)

        var body: some View {
            ZStack {
                Rectangle()
                    .fill(Group1.fade)
                Rectangle()
                    .stroke(Color.red, style: .init())
            }
        }
    }

    struct Circle1: View {

        static let intrinsicSize = CGSize(width: 20, height: 20)
        static let origin        = CGPoint(x: 50, y: 30)

        var body: some View {
            Circle()
                .fill(Color(red: 0, green: 0, blue: 0))
                .offset(x: 1, y: 2)
        }
    }

    var isResizable = false
    func resizable() -> Self { Self(isResizable: true) }

    var body: some View {
        if isResizable {
            GeometryReader { proxy in
                ZStack(alignment: .topLeading) {
                    PathView1()
                    Reactangle1()
                        .frame(width: 20, height: 20, alignment: .topLeading)
                        .padding(.leading, 10)
                        .padding(.top, 10)
                    Circle1()
                        .frame(width: 20, height: 20, alignment: .topLeading)
                        .padding(.leading, 50)
                        .padding(.top, 30)
                    Text("Tab	\"verbatim\"")
                        .foregroundColor(.init(red: 1, green: 0, blue: 0))
                        .font(.system(size: 9, weight: .bold))
                        .padding(.leading, 12)
                        .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
                        .frame(width: .infinity, height: 70, alignment: .bottom)
                }
                .frame(width: 120, height: 80,
                       alignment: .topLeading)
                .scaleEffect(x: proxy.size.width  / 120,
                             y: proxy.size.height / 80)
                .frame(width: proxy.size.width, height: proxy.size.height)
            }
        }
        else {
            ZStack(alignment: .topLeading) {
                PathView1()
                Reactangle1()
                    .frame(width: 20, height: 20, alignment: .topLeading)
                    .padding(.leading, 10)
                    .padding(.top, 10)
                Circle1()
                    .frame(width: 20, height: 20, alignment: .topLeading)
                    .padding(.leading, 50)
                    .padding(.top, 30)
                Text("Tab	\"verbatim\"")
                    .foregroundColor(.init(red: 1, green: 0, blue: 0))
                    .font(.system(size: 9, weight: .bold))
                    .padding(.leading, 12)
                    .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
                    .frame(width: .infinity, height: 70, alignment: .bottom)
            }
            .frame(width: 120, height: 80)
        }
    }
}
